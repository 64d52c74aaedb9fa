#include "apps/viewer/view/CityView.h"

#include "apps/viewer/document/Document.h"
#include "apps/viewer/selection/RowSelectionModel.h"
#include "apps/viewer/view/SceneLink.h"
#include "scene/Fitting.h"

#include <cmath>
#include <QApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QOpenGLContext>
#include <QToolTip>

namespace tolvik::viewer {

using scene::Camera;
using scene::Hit;
using scene::noSlot;
using scene::Slot;

namespace {

/// Turned by a drag over a pixel, in radians.
constexpr double anglePerPixel = 0.008;
constexpr double anglePerKey = 0.13;
/// Of the picture's height.
constexpr double wayPerKey = 0.08;
constexpr double zoomPerNotch = 0.85;

} // namespace

bool CityView::isPossible()
{
    QOpenGLContext context;
    return context.create();
}

CityView::CityView(Document& document, SceneLink& link, QWidget* parent)
    : QOpenGLWidget(parent), document(document), link(link),
      frame(new QRubberBand(QRubberBand::Rectangle, this))
{
    setObjectName(QStringLiteral("cityView"));
    setAccessibleName(tr("City in three dimensions"));
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(120, 90);
    setMouseTracking(true);
    connect(&link, &SceneLink::begun, this, [this] { isMoved = false; });
    connect(&link, &SceneLink::changed, this, [this] {
        if (!isMoved) {
            fitAll();
            isMoved = false;
        }
        update();
    });
    connect(&link, &SceneLink::finished, this, [this] { isMoved = true; });
}

CityView::~CityView()
{
    if (context() != nullptr) {
        disconnect(context(), &QOpenGLContext::aboutToBeDestroyed, this, &CityView::releaseScene);
    }
    releaseScene();
}

void CityView::releaseScene()
{
    if (renderer != nullptr) {
        makeCurrent();
        renderer->release();
        renderer.reset();
        doneCurrent();
    }
}

void CityView::initializeGL()
{
    // A widget that comes into another window gets another context.
    connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, &CityView::releaseScene,
            Qt::UniqueConnection);
    renderer = std::make_unique<scene::Renderer>(link.scene());
    reason = renderer->unfitness();
    if (!reason.isEmpty()) {
        renderer.reset();
        emit failed();
    }
}

void CityView::paintGL()
{
    if (renderer != nullptr) {
        renderer->draw(eye, pixelSize(), drawOptions);
    }
}

QSize CityView::pixelSize() const
{
    return size() * devicePixelRatioF();
}

QPoint CityView::pixelOf(const QPoint& place) const
{
    // The middle of what may be several pixels.
    const QPointF middle = (QPointF(place) + QPointF(0.5, 0.5)) * devicePixelRatioF();
    return QPoint(static_cast<int>(middle.x()), static_cast<int>(middle.y()));
}

double CityView::aspect() const
{
    return height() > 0 ? static_cast<double>(width()) / height() : 1;
}

void CityView::moved()
{
    isMoved = true;
    update();
    emit cameraChanged();
}

void CityView::setCamera(const Camera& camera)
{
    eye = camera;
    moved();
}

void CityView::setOptions(const scene::DrawOptions& options)
{
    drawOptions = options;
    update();
}

void CityView::fitAll()
{
    eye.fit(link.scene().bounds(), aspect());
    moved();
}

void CityView::fitSelection()
{
    fit(link.selectedFeatures());
}

void CityView::fit(const std::vector<Slot>& features)
{
    if (renderer == nullptr || features.empty()) {
        return;
    }
    makeCurrent();
    eye = fittedTo(features, eye, pixelSize(), link.scene(), *renderer, drawOptions);
    doneCurrent();
    moved();
}

void CityView::look(Camera::Direction direction)
{
    eye.setDirection(direction);
    fitAll();
}

void CityView::setParallel(bool isParallel)
{
    eye.setParallel(isParallel);
    moved();
}

Hit CityView::hitAt(const QPoint& place)
{
    if (renderer == nullptr) {
        return Hit();
    }
    makeCurrent();
    const Hit hit = renderer->pick(eye, pixelSize(), pixelOf(place), drawOptions);
    doneCurrent();
    return hit;
}

QPointF CityView::placeOf(const osg::Vec3d& position) const
{
    const osg::Vec3d seen =
        position * (eye.viewMatrix() * eye.projectionMatrix(aspect(), link.scene().bounds()));
    return QPointF((seen.x() + 1) / 2 * width(), (1 - seen.y()) / 2 * height());
}

QImage CityView::picture(const QSize& size, bool isClear)
{
    if (renderer == nullptr) {
        return QImage();
    }
    link.finish();
    makeCurrent();
    QImage image = renderer->picture(eye, size, drawOptions, isClear);
    doneCurrent();
    return image;
}

void CityView::setPlacing(bool places)
{
    isPlacing = places;
    setCursor(places ? Qt::CrossCursor : Qt::ArrowCursor);
}

bool CityView::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto& help = static_cast<const QHelpEvent&>(*event);
        showTip(help.pos(), help.globalPos());
        return true;
    }
    return QOpenGLWidget::event(event);
}

/// Shows name and type of what the pointer rests on.
void CityView::showTip(const QPoint& place, const QPoint& globalPlace)
{
    const Hit hit = hitAt(place);
    const int row = hit.slot != noSlot ? link.rowOf(hit.slot) : -1;
    if (row < 0) {
        QToolTip::hideText();
        return;
    }
    const CityGMLModel& model = document.model();
    const QString name = model.index(row, 0).data().toString();
    const QString type = model.index(row, 1).data().toString();
    QToolTip::showText(globalPlace, QStringLiteral("%1\n%2").arg(name, type), this);
}

void CityView::mousePressEvent(QMouseEvent* event)
{
    dragBegin = dragLast = event->pos();
    isDragged = false;
    if (event->button() == Qt::LeftButton) {
        drag = (event->modifiers() & Qt::ShiftModifier) != 0 ? Drag::Frame : Drag::Orbit;
    } else if (event->button() == Qt::MiddleButton || event->button() == Qt::RightButton) {
        drag = Drag::Pan;
    }
}

void CityView::mouseMoveEvent(QMouseEvent* event)
{
    if (drag == Drag::None) {
        return;
    }
    const QPoint way = event->pos() - dragBegin;
    isDragged = isDragged || way.manhattanLength() >= QApplication::startDragDistance();
    if (isDragged) {
        dragTo(event->pos());
    }
}

void CityView::dragTo(const QPoint& place)
{
    const QPoint step = place - dragLast;
    dragLast = place;
    switch (drag) {
    case Drag::Orbit:
        eye.orbit(step.x() * anglePerPixel, step.y() * anglePerPixel);
        return moved();
    case Drag::Pan:
        eye.pan(osg::Vec2d(step.x(), -step.y()) / std::max(1, height()));
        return moved();
    case Drag::Frame:
        frame->setGeometry(QRect(dragBegin, place).normalized());
        return frame->show();
    case Drag::None:
        return;
    }
}

void CityView::mouseReleaseEvent(QMouseEvent* event)
{
    const Drag ended = drag;
    drag = Drag::None;
    frame->hide();
    if (ended == Drag::Frame && isDragged) {
        selectFrame(QRect(dragBegin, event->pos()).normalized(),
                    (event->modifiers() & Qt::ControlModifier) != 0);
    } else if (!isDragged) {
        click(*event);
    }
}

void CityView::click(const QMouseEvent& event)
{
    const Hit hit = hitAt(event.pos());
    if (event.button() == Qt::RightButton) {
        emit menuRequested(hit.slot != noSlot ? link.rowOf(hit.slot) : -1, event.globalPos());
    } else if (event.button() == Qt::LeftButton && isPlacing) {
        if (hit.slot != noSlot) {
            emit placed(hit.position);
        }
    } else if (event.button() == Qt::LeftButton) {
        const bool adds = (event.modifiers() & Qt::ControlModifier) != 0;
        const int row = hit.slot != noSlot ? link.rowOf(hit.slot) : -1;
        const QModelIndex index = document.model().index(row, 0);
        if (row >= 0) {
            document.selection().setCurrentIndex(
                index, QItemSelectionModel::Rows |
                           (adds ? QItemSelectionModel::Toggle : QItemSelectionModel::ClearAndSelect));
        } else if (!adds) {
            document.selection().clearSelection();
        }
    }
}

void CityView::mouseDoubleClickEvent(QMouseEvent* event)
{
    const Hit hit = event->button() == Qt::LeftButton ? hitAt(event->pos()) : Hit();
    if (hit.slot != noSlot) {
        fit({hit.slot});
    }
}

void CityView::selectFrame(const QRect& place, bool adds)
{
    if (renderer == nullptr) {
        return;
    }
    makeCurrent();
    const QRect pixels(pixelOf(place.topLeft()), pixelOf(place.bottomRight()));
    const std::set<Slot> found = renderer->pick(eye, pixelSize(), pixels, drawOptions);
    doneCurrent();
    select(found, adds);
}

void CityView::select(const std::set<Slot>& features, bool adds)
{
    QItemSelection selected = adds ? document.selection().selection() : QItemSelection();
    CityGMLModel& model = document.model();
    for (const Slot slot : features) {
        const int row = link.rowOf(slot);
        if (row >= 0) {
            selected.append(
                QItemSelectionRange(model.index(row, 0), model.index(row, model.columnCount() - 1)));
        }
    }
    document.selection().replace(selected);
}

void CityView::wheelEvent(QWheelEvent* event)
{
    const double notches = event->angleDelta().y() / 120.0;
    const QPointF place = event->position();
    eye.zoom(std::pow(zoomPerNotch, notches),
             osg::Vec2d(2 * place.x() / std::max(1, width()) - 1, 1 - 2 * place.y() / std::max(1, height())),
             aspect());
    moved();
}

void CityView::keyPressEvent(QKeyEvent* event)
{
    const bool isMove = (event->modifiers() & Qt::ShiftModifier) != 0;
    if (isMove ? moveByKey(event->key()) : turnByKey(event->key())) {
        moved();
    } else {
        QOpenGLWidget::keyPressEvent(event);
    }
}

bool CityView::turnByKey(int key)
{
    switch (key) {
    case Qt::Key_Left:
        eye.orbit(anglePerKey, 0);
        return true;
    case Qt::Key_Right:
        eye.orbit(-anglePerKey, 0);
        return true;
    case Qt::Key_Up:
        eye.orbit(0, anglePerKey);
        return true;
    case Qt::Key_Down:
        eye.orbit(0, -anglePerKey);
        return true;
    case Qt::Key_Plus:
        eye.zoom(zoomPerNotch, osg::Vec2d(), aspect());
        return true;
    case Qt::Key_Minus:
        eye.zoom(1 / zoomPerNotch, osg::Vec2d(), aspect());
        return true;
    default:
        return false;
    }
}

bool CityView::moveByKey(int key)
{
    switch (key) {
    case Qt::Key_Left:
        eye.pan(osg::Vec2d(wayPerKey, 0));
        return true;
    case Qt::Key_Right:
        eye.pan(osg::Vec2d(-wayPerKey, 0));
        return true;
    case Qt::Key_Up:
        eye.pan(osg::Vec2d(0, -wayPerKey));
        return true;
    case Qt::Key_Down:
        eye.pan(osg::Vec2d(0, wayPerKey));
        return true;
    default:
        return turnByKey(key);
    }
}

} // namespace tolvik::viewer
