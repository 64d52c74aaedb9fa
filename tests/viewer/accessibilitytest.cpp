#include "apps/viewer/application/Translations.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"
#include "viewer/OpenedWindow.h"

#include <QAccessible>
#include <QMenuBar>
#include <QtTest>

using namespace testsupport;

namespace {

/// What a user does something with, and so has to be told the name of.
bool needsName(QAccessible::Role role)
{
    switch (role) {
    case QAccessible::Button:
    case QAccessible::CheckBox:
    case QAccessible::ComboBox:
    case QAccessible::EditableText:
    case QAccessible::List:
    case QAccessible::MenuItem:
    case QAccessible::PageTab:
    case QAccessible::ProgressBar:
    case QAccessible::RadioButton:
    case QAccessible::SpinBox:
    case QAccessible::Table:
    case QAccessible::Tree:
        return true;
    default:
        return false;
    }
}

QString describe(QAccessibleInterface& object)
{
    const QObject* const widget = object.object();
    return widget != nullptr
               ? QLatin1String(widget->metaObject()->className()) + QLatin1Char(' ') + widget->objectName()
               : QString::number(object.role());
}

/// Adds what has no name, and counts what has one.
void walk(QAccessibleInterface& object, QStringList& nameless, int& named)
{
    // Qt's own: buttons to scroll tabs, the corners of views, the lines in menus, the clear buttons of line
    // edits.
    const QString className =
        object.object() != nullptr ? object.object()->metaObject()->className() : QString();
    if (object.state().invisible || className == "QScrollBar" || className == "QLineEditIconButton" ||
        className == "QMenu") {
        return;
    }
    if (needsName(object.role())) {
        if (object.text(QAccessible::Name).isEmpty()) {
            nameless.append(describe(object));
        } else {
            ++named;
        }
    }
    if (object.role() == QAccessible::Tree || object.role() == QAccessible::Table ||
        object.role() == QAccessible::List || object.role() == QAccessible::ComboBox) {
        return; // rows are named by the document
    }
    for (int i = 0; i < object.childCount(); ++i) {
        if (QAccessibleInterface* const child = object.child(i)) {
            walk(*child, nameless, named);
        }
    }
}

} // namespace

/// The window without a mouse, and without eyes.
class AccessibilityTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        opened = std::make_unique<OpenedWindow>(examples() + "/district.gml");
        opened->window->activateWindow();
    }
    void cleanup()
    {
        opened.reset();
        // Each leaves the list of the application as it goes.
        qDeleteAll(qApp->findChildren<QTranslator*>());
    }

    void everythingHasAName()
    {
        opened->select({"heron-bridge"});
        QTest::qWait(50);
        QStringList nameless;
        int named = 0;
        walk(*QAccessible::queryAccessibleInterface(opened->window.get()), nameless, named);
        QCOMPARE(nameless, QStringList());
        QVERIFY(named > 15);
    }

    void theKeyboardGoesFromTheSearchToTheTree()
    {
        opened->window->findChild<QWidget*>("search")->setFocus();
        QStringList names;
        for (int i = 0; i < 6; ++i) {
            names.append(QApplication::focusWidget()->objectName());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(names.mid(0, 5),
                 QStringList({"search", "previousHit", "nextHit", "typeFilter", "onlyHits"}));
        for (int i = 0; i < 3 && QApplication::focusWidget() != opened->view("featureTree"); ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QVERIFY(names.contains("featureTree") || QApplication::focusWidget() == opened->view("featureTree"));
    }

    void everyMenuEntryHasAKeyOfItsOwn_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::newRow("English") << QLocale(QLocale::English);
        QTest::newRow("French") << QLocale(QLocale::French);
        QTest::newRow("German") << QLocale(QLocale::German);
    }
    void everyMenuEntryHasAKeyOfItsOwn()
    {
        QFETCH(QLocale, locale);
        opened.reset();
        tolvik::viewer::installTranslations(locale);
        opened = std::make_unique<OpenedWindow>(QString());
        const QString file = locale.language() == QLocale::French
                                 ? "&Fichier"
                                 : (locale.language() == QLocale::German ? "&Datei" : "&File");
        QCOMPARE(opened->window->menuBar()->actions().at(0)->text(), file);
        for (const QMenu* const menu : opened->window->findChildren<QMenu*>()) {
            QStringList keys;
            for (const QAction* const action : menu->actions()) {
                const QString text = action->text();
                const int mark = QString(text).replace("&&", "  ").indexOf('&');
                if (mark >= 0) {
                    keys.append(text.mid(mark + 1, 1).toLower());
                }
            }
            QVERIFY2(keys.removeDuplicates() == 0, qPrintable(menu->title() + ": " + keys.join(' ')));
        }
    }

    void theTreeIsWalkedByKeys()
    {
        QTreeView* const tree = opened->view("featureTree");
        tree->setFocus();
        QTest::keyClick(tree, Qt::Key_Home);
        QTest::keyClick(tree, Qt::Key_Down);
        QCOMPARE(opened->selected().size(), 1);
        const QModelIndex building = tree->currentIndex();
        QTest::keyClick(tree, Qt::Key_Right);
        QVERIFY(tree->isExpanded(building) || !tree->model()->hasChildren(building));
    }

private:
    std::unique_ptr<OpenedWindow> opened;
};

TEST_CLASS(AccessibilityTest, Widgets)
#include "accessibilitytest.moc"
