#include "UI/Models/CityGMLModel/properties/GmlEditRangeDialog.h"
#include "support/TestClass.h"
#include "UI/Models/CityGMLModel/CityGMLModel.h"
#include "viewsettings/CityGMLViewSettingsWidget.h"

#include <memory>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QtTest>
#include <QVBoxLayout>

using namespace testsupport;

using tolvik::CityGMLViewSettings;
using tolvik::CityGMLViewSettingsWidget;
using tolvik::GmlEditRangeDialog;

namespace {

const QVector<double> numbers{5000.0, 4000.0, 3000.5, 200.25, 10.0};

QPushButton* button(const QDialog& dialog, QDialogButtonBox::StandardButton which)
{
    return dialog.findChild<QDialogButtonBox*>()->button(which);
}

} // namespace

class GmlEditRangeDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void metaObject()
    {
        QCOMPARE(GmlEditRangeDialog::staticMetaObject.className(), "tolvik::GmlEditRangeDialog");
        QCOMPARE(GmlEditRangeDialog::staticMetaObject.superClass()->className(), "tolvik::EditRangeDialog");
        QCOMPARE(GmlEditRangeDialog::staticMetaObject.methodCount(),
                 GmlEditRangeDialog::staticMetaObject.methodOffset());
    }

    void keepsTheNumbers()
    {
        GmlEditRangeDialog dialog(numbers, nullptr);
        QCOMPARE(dialog.getRanges(), numbers);
        const CityGMLViewSettings shown = dialog.findChild<CityGMLViewSettingsWidget*>()->settings();
        QCOMPARE(shown.lod0Range, 5000.0);
        QCOMPARE(shown.lod4Range, 10.0);
    }

    void furtherNumbersAreLost()
    {
        GmlEditRangeDialog dialog(numbers + QVector<double>{1.0, 2.0}, nullptr);
        QCOMPARE(dialog.getRanges(), numbers);
    }

    void missingNumbersAreThoseOfDefaultSettings()
    {
        const CityGMLViewSettings defaults;
        GmlEditRangeDialog two({70.0, 60.0}, nullptr);
        QCOMPARE(two.getRanges(),
                 QVector<double>({70.0, 60.0, defaults.lod2Range, defaults.lod3Range, defaults.lod4Range}));
        GmlEditRangeDialog none({}, nullptr);
        QCOMPARE(none.getRanges().size(), 5);
        QCOMPARE(none.getRanges()[0], defaults.lod0Range);
    }

    void tellsWhatTheWidgetHoldsNow()
    {
        GmlEditRangeDialog dialog(numbers, nullptr);
        dialog.findChild<CityGMLViewSettingsWidget*>()->setSettings({1.0, 2.0, 3.0, 4.0, 5.0});
        const QVector<double> edited{1.0, 2.0, 3.0, 4.0, 5.0};
        QCOMPARE(dialog.getRanges(), edited);
        button(dialog, QDialogButtonBox::Cancel)->click();
        QCOMPARE(dialog.getRanges(), edited);
    }

    void layout()
    {
        QWidget parent;
        GmlEditRangeDialog dialog(numbers, &parent);
        QCOMPARE(dialog.parentWidget(), &parent);
        auto* const layout = qobject_cast<QVBoxLayout*>(dialog.layout());
        QVERIFY(layout != nullptr);
        QCOMPARE(layout->spacing(), 3);
        QCOMPARE(layout->contentsMargins(), QMargins(3, 3, 3, 3));
        QCOMPARE(layout->count(), 2);
        QVERIFY(qobject_cast<CityGMLViewSettingsWidget*>(layout->itemAt(0)->widget()) != nullptr);
        auto* const buttons = qobject_cast<QDialogButtonBox*>(layout->itemAt(1)->widget());
        QVERIFY(buttons != nullptr);
        QCOMPARE(buttons->standardButtons(), QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
        for (int i = 0; i < 2; ++i) {
            QCOMPARE(layout->itemAt(i)->widget()->parentWidget(), &dialog);
            QCOMPARE(layout->stretch(i), 0);
            QCOMPARE(layout->itemAt(i)->alignment(), Qt::Alignment());
        }
        QVERIFY(dialog.windowTitle().isEmpty());
    }

    void buttonsEndTheDialog()
    {
        GmlEditRangeDialog dialog(numbers, nullptr);
        QSignalSpy accepted(&dialog, &QDialog::accepted);
        QSignalSpy rejected(&dialog, &QDialog::rejected);
        dialog.open();
        button(dialog, QDialogButtonBox::Ok)->click();
        QCOMPARE(accepted.count(), 1);
        QCOMPARE(dialog.result(), static_cast<int>(QDialog::Accepted));
        dialog.open();
        button(dialog, QDialogButtonBox::Cancel)->click();
        QCOMPARE(rejected.count(), 1);
        QCOMPARE(dialog.result(), static_cast<int>(QDialog::Rejected));
    }

    void theModelMakesOneForEachCall()
    {
        tolvik::CityGMLModel model(nullptr, nullptr);
        const std::unique_ptr<tolvik::EditRangeDialog> first(model.getEditRangeDialog(numbers));
        const std::unique_ptr<tolvik::EditRangeDialog> second(model.getEditRangeDialog(numbers));
        QVERIFY(first != second);
        QVERIFY(qobject_cast<GmlEditRangeDialog*>(first.get()) != nullptr);
        QVERIFY(first->parent() == nullptr);
        QCOMPARE(first->getRanges(), numbers);
        button(*first, QDialogButtonBox::Cancel)->click();
        QVERIFY(!model.dirty());
        QVERIFY(model.children().isEmpty());
    }
};

TEST_CLASS(GmlEditRangeDialogTest, Widgets)
#include "gmleditrangedialogtest.moc"
