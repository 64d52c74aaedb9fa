#include "framework/EditRangeDialog.h"
#include "support/TestClass.h"

#include <memory>
#include <QtTest>

using namespace testsupport;

using tolvik::EditRangeDialog;

namespace {

class Doubling : public EditRangeDialog
{
public:
    using EditRangeDialog::EditRangeDialog;

    QVector<double> getRanges() override
    {
        QVector<double> ranges = EditRangeDialog::getRanges();
        for (double& number : ranges) {
            number *= 2.0;
        }
        return ranges;
    }
};

} // namespace

class EditRangeDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void givesTheRangesBack()
    {
        EditRangeDialog dialog({1.0, 2.0, 3.0});
        QCOMPARE(dialog.getRanges(), QVector<double>({1.0, 2.0, 3.0}));
        dialog.reject();
        QCOMPARE(dialog.getRanges(), QVector<double>({1.0, 2.0, 3.0}));
    }

    void takesAnyNumberOfRanges()
    {
        EditRangeDialog dialog({});
        QVERIFY(dialog.getRanges().isEmpty());
    }

    void leavesTheLayoutToTheSubclass()
    {
        const EditRangeDialog dialog({1.0});
        QVERIFY(dialog.layout() == nullptr);
        QVERIFY(dialog.children().isEmpty());
        QVERIFY(dialog.inherits("QDialog"));
        QCOMPARE(dialog.metaObject()->className(), "tolvik::EditRangeDialog");
    }

    void hostReachesTheSubclass()
    {
        const std::unique_ptr<EditRangeDialog> dialog = std::make_unique<Doubling>(QVector<double>{1.5});
        QCOMPARE(dialog->getRanges(), QVector<double>({3.0}));
    }

    void hasAParent()
    {
        QWidget parent;
        const EditRangeDialog dialog({}, &parent);
        QCOMPARE(dialog.parentWidget(), &parent);
    }
};

TEST_CLASS(EditRangeDialogTest, Widgets)
#include "editrangedialogtest.moc"
