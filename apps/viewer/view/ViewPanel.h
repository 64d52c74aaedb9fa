#pragma once

#include "apps/viewer/features/SlicedWork.h"
#include "apps/viewer/view/PropertyPaths.h"
#include "scene/Camera.h"

#include <QWidget>

class QAction;
class QComboBox;
class QLabel;
class QMenu;
class QSlider;
class QToolBar;
class QVBoxLayout;

namespace tolvik::viewer {

class CityView;
class Document;
class SceneLink;
class ViewOverlay;

/// The view of the city with its tools, or a message in its place where there is no OpenGL.
class ViewPanel : public QWidget
{
    Q_OBJECT

public:
    explicit ViewPanel(Document& document, QWidget* parent = nullptr);
    ~ViewPanel() override;

    /// Null where there is no OpenGL.
    CityView* view() const { return city; }
    SceneLink* link() const { return sceneLink; }
    ViewOverlay* overlay() const { return marks; }

    /// Adds what can be done with the view to a menu; nothing where there is no view.
    void addTo(QMenu& menu) const;

    /// Asks for a size and a file, and writes a picture of the view.
    void savePicture();
    void copyPicture();

signals:
    /// The menu of a feature is asked for, see CityView::menuRequested().
    void menuRequested(int row, const QPoint& globalPosition);
    /// Something to say in the status bar.
    void told(const QString& text);
    /// Something to say until the user has read it.
    void noticed(const QString& text);

private:
    void makeView();
    void makeActions();
    QAction* add(const QString& name, const QString& text, const QKeySequence& key,
                 void (ViewPanel::*slot)());
    QAction* addSwitch(const QString& name, const QString& text, const QKeySequence& key, bool isOn,
                       void (ViewPanel::*slot)(bool));
    void makeTools();
    QToolBar& addTools(const QString& name);
    void makeLodTool(QToolBar& bar);
    void makeThemeTool(QToolBar& bar);
    void makeColourTool(QToolBar& bar);
    void makeSectionTool(QToolBar& bar);
    void showMessage(const QString& text);

    void fitAll();
    void fitSelection();
    void lookOblique();
    void lookFromTop();
    void lookFromFront();
    void lookFromSide();
    void setParallel(bool isParallel);
    void setEdges(bool areShown);
    void setMeasuring(bool isMeasuring);
    void resetSelected();

    void chooseLod(int index);
    void chooseTheme(int index);
    void chooseColours();
    void moveSection();
    void showDocument();
    void showFinished();
    void showLegend();
    void fillThemes();
    void fillAttributes();

    Document& document;
    SceneLink* sceneLink = nullptr;
    CityView* city = nullptr;
    ViewOverlay* marks = nullptr;
    PropertyPaths paths;
    SlicedWork lookingForPaths;
    QVBoxLayout* layout;
    QVector<QAction*> actionsOfView; // in the order of the menu, null for a line between
    QComboBox* lods = nullptr;
    QComboBox* themes = nullptr;
    QComboBox* attributes = nullptr;
    QComboBox* sectionAxis = nullptr;
    QSlider* section = nullptr;
    QLabel* coordinates = nullptr;
};

} // namespace tolvik::viewer
