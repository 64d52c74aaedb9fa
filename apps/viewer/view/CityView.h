#pragma once

#include "scene/Renderer.h"

#include <functional>
#include <memory>
#include <optional>
#include <QOpenGLWidget>
#include <QRubberBand>
#include <QTimer>

namespace tolvik::viewer {

class Document;
class SceneLink;

/// Shows the features of a document in three dimensions, from where the user looks.
///
/// The left button turns the city, the middle or right one moves it, the wheel zooms to the pointer. A click
/// selects, with Ctrl one more, with Shift and a frame all that is seen in it; a double click brings a
/// feature into sight. It draws only when something has changed.
class CityView : public QOpenGLWidget
{
    Q_OBJECT

public:
    /// Whether there is an OpenGL to draw with.
    static bool isPossible();

    CityView(Document& document, SceneLink& link, QWidget* parent = nullptr);
    ~CityView() override;

    const scene::Camera& camera() const { return eye; }
    void setCamera(const scene::Camera& camera);
    const scene::DrawOptions& options() const { return drawOptions; }
    void setOptions(const scene::DrawOptions& options);

    /// Why nothing is drawn, as a sentence; empty if it is.
    const QString& error() const { return reason; }

    void fitAll();
    void fitSelection();
    void fit(const std::vector<scene::Slot>& features);
    void look(scene::Camera::Direction direction);
    void setParallel(bool isParallel);

    /// What is seen at a place of the widget.
    scene::Hit hitAt(const QPoint& place);
    /// Where a place of the scene is seen in the widget.
    QPointF placeOf(const osg::Vec3d& position) const;

    /// \param size in pixels
    QImage picture(const QSize& size, bool isClear);

    /// The next clicks choose places, and not features.
    void setPlacing(bool isPlacing);

signals:
    /// The menu of a feature is asked for.
    /// \param row in the document's list; -1 where there is none
    void menuRequested(int row, const QPoint& globalPosition);
    /// A place was chosen, relative to the scene's origin.
    void placed(const osg::Vec3d& position);
    /// It is looked from somewhere else.
    void cameraChanged();
    /// error() has an answer.
    void failed();

protected:
    void initializeGL() override;
    void paintGL() override;
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    enum class Drag { None, Orbit, Pan, Frame };

    QSize pixelSize() const;
    QPoint pixelOf(const QPoint& place) const;
    double aspect() const;
    void moved();
    void dragTo(const QPoint& place);
    void click(const QMouseEvent& event);
    void selectFrame(const QRect& frame, bool adds);
    void select(const std::set<scene::Slot>& features, bool adds);
    void showTip(const QPoint& place, const QPoint& globalPlace);
    bool turnByKey(int key);
    bool moveByKey(int key);
    void releaseScene();

    Document& document;
    SceneLink& link;
    std::unique_ptr<scene::Renderer> renderer;
    scene::Camera eye;
    scene::DrawOptions drawOptions;
    QString reason;
    /// Whether the user has moved, so that a document that is still coming does not move the camera.
    bool isMoved = false;
    bool isPlacing = false;

    Drag drag = Drag::None;
    bool isDragged = false;
    QPoint dragBegin;
    QPoint dragLast;
    QRubberBand* frame;
};

} // namespace tolvik::viewer
