#include "support/TestClass.h"
#include "viewsettings/CityGMLViewSettingsWidget.h"

#include <cmath>
#include <limits>
#include <QDoubleSpinBox>
#include <QtTest>

using namespace testsupport;

using tolvik::CityGMLViewSettings;
using tolvik::CityGMLViewSettingsWidget;

namespace {

QVector<double> numbers(const CityGMLViewSettings& settings)
{
    return {settings.lod0Range, settings.lod1Range, settings.lod2Range, settings.lod3Range,
            settings.lod4Range};
}

/// The lines from the top down.
QList<QDoubleSpinBox*> linesOf(const QWidget& widget)
{
    return widget.findChildren<QDoubleSpinBox*>();
}

} // namespace

class ViewSettingsTest : public QObject
{
    Q_OBJECT

private slots:
    void startsWithTheDefaults()
    {
        const CityGMLViewSettingsWidget widget;
        QCOMPARE(numbers(widget.settings()), numbers(CityGMLViewSettings()));
        const QList<QDoubleSpinBox*> lines = linesOf(widget);
        QCOMPARE(lines.size(), 5);
        QCOMPARE(lines[4]->value(), CityGMLViewSettings().lod4Range);
    }

    void numbersComeBackAsSet()
    {
        CityGMLViewSettingsWidget widget;
        const CityGMLViewSettings settings{1.0, 0.123456789, -5.0, 1e300, 3.0};
        widget.setSettings(settings);
        QCOMPARE(numbers(widget.settings()), numbers(settings));
        const QList<QDoubleSpinBox*> lines = linesOf(widget);
        QCOMPARE(lines[0]->value(), 1.0);
        QCOMPARE(lines[1]->value(), 0.12);
        QCOMPARE(lines[2]->value(), 0.0);
    }

    void notANumberComesBackToo()
    {
        CityGMLViewSettingsWidget widget;
        CityGMLViewSettings settings;
        settings.lod2Range = std::numeric_limits<double>::quiet_NaN();
        widget.setSettings(settings);
        QVERIFY(std::isnan(widget.settings().lod2Range));
        QCOMPARE(widget.settings().lod3Range, settings.lod3Range);
    }

    void editOfALineChangesItsNumberAlone()
    {
        CityGMLViewSettingsWidget widget;
        widget.setSettings({1.0, 2.125, 3.0, 4.0, 5.0});
        for (int i = 0; i < 5; ++i) {
            linesOf(widget)[i]->setValue(100.0 + i);
            QCOMPARE(numbers(widget.settings())[i], 100.0 + i);
            if (i == 0) {
                QCOMPARE(widget.settings().lod1Range, 2.125);
            }
        }
    }
};

TEST_CLASS(ViewSettingsTest, Widgets)
#include "viewsettingstest.moc"
