#include "apps/viewer/application/Colours.h"

#include <QApplication>
#include <QPalette>
#include <QSettings>
#include <QStyle>
#include <QStyleFactory>

namespace tolvik::viewer {

namespace {

QString key()
{
    return QStringLiteral("colours");
}

QString nameOf(Colours colours)
{
    switch (colours) {
    case Colours::Light:
        return QStringLiteral("light");
    case Colours::Dark:
        return QStringLiteral("dark");
    default:
        return QStringLiteral("desktop");
    }
}

QPalette darkPalette()
{
    const QColor window(62, 62, 66), base(28, 28, 30), text(225, 225, 225), weak(150, 150, 150);
    QPalette palette;
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::AlternateBase, QColor(38, 38, 41));
    palette.setColor(QPalette::ToolTipBase, QColor(70, 66, 45));
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::PlaceholderText, weak);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::Button, window);
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::BrightText, Qt::white);
    palette.setColor(QPalette::Link, QColor(110, 175, 250));
    palette.setColor(QPalette::LinkVisited, QColor(185, 150, 240));
    palette.setColor(QPalette::Highlight, QColor(45, 105, 175));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, weak);
    }
    return palette;
}

} // namespace

Colours coloursNamed(const QString& name)
{
    for (const Colours colours : {Colours::Light, Colours::Dark}) {
        if (name == nameOf(colours)) {
            return colours;
        }
    }
    return Colours::Desktop;
}

Colours chosenColours()
{
    return coloursNamed(QSettings().value(key()).toString());
}

void chooseColours(Colours colours)
{
    QSettings().setValue(key(), nameOf(colours));
    applyColours(colours);
}

void applyColours(Colours colours)
{
    static const QString desktopStyle = QApplication::style()->objectName();
    static const QPalette desktopPalette = QApplication::palette();
    // The style of a desktop may draw with colours of its own.
    QStyle* const style =
        QStyleFactory::create(colours == Colours::Desktop ? desktopStyle : QStringLiteral("Fusion"));
    if (style == nullptr) {
        return;
    }
    const QPalette light = style->standardPalette();
    QApplication::setStyle(style);
    switch (colours) {
    case Colours::Dark:
        QApplication::setPalette(darkPalette());
        break;
    case Colours::Light:
        QApplication::setPalette(light);
        break;
    default:
        QApplication::setPalette(desktopPalette);
    }
}

} // namespace tolvik::viewer
