#include "apps/viewer/view/ViewPanel.h"

#include "apps/viewer/document/Document.h"
#include "apps/viewer/features/FeatureRows.h"
#include "apps/viewer/view/CityView.h"
#include "apps/viewer/view/PictureDialog.h"
#include "apps/viewer/view/SceneLink.h"
#include "apps/viewer/view/ViewOverlay.h"

#include <initializer_list>
#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QGuiApplication>
#include <QLabel>
#include <QMenu>
#include <QSlider>
#include <QToolBar>
#include <QVBoxLayout>

namespace tolvik::viewer {

using scene::Camera;
using scene::LodChoice;

namespace {

constexpr int sectionSteps = 200;

} // namespace

ViewPanel::ViewPanel(Document& document, QWidget* parent)
    : QWidget(parent), document(document), layout(new QVBoxLayout(this))
{
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    if (CityView::isPossible()) {
        makeView();
    } else {
        showMessage(tr("The city cannot be drawn: there is no OpenGL here. Everything else can be used."));
    }
}

ViewPanel::~ViewPanel() = default;

void ViewPanel::makeView()
{
    sceneLink = new SceneLink(document, this);
    city = new CityView(document, *sceneLink, this);
    marks = new ViewOverlay(*city);
    makeActions();
    makeTools();
    layout->addWidget(city, 1);
    city->addActions(actions());
    connect(city, &CityView::menuRequested, this, &ViewPanel::menuRequested);
    connect(city, &CityView::placed, marks, &ViewOverlay::addPlace);
    connect(city, &CityView::failed, this, [this] {
        city->hide();
        showMessage(tr("The city cannot be drawn: %1.").arg(city->error()));
    });
    connect(marks, &ViewOverlay::measured, this, &ViewPanel::told);
    connect(sceneLink, &SceneLink::begun, this, &ViewPanel::showDocument);
    connect(sceneLink, &SceneLink::coloursChanged, this, &ViewPanel::showLegend);
    connect(sceneLink, &SceneLink::progressed, this, [this](double part) {
        if (part < 1) {
            emit told(tr("Building the view: %1 %").arg(static_cast<int>(part * 100)));
        }
    });
    connect(sceneLink, &SceneLink::finished, this, &ViewPanel::showFinished);
}

void ViewPanel::showMessage(const QString& text)
{
    auto* const label = new QLabel(text);
    label->setObjectName(QStringLiteral("viewMessage"));
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    layout->addWidget(label, 1);
}

void ViewPanel::addTo(QMenu& menu) const
{
    for (QAction* const action : actionsOfView) {
        if (action == nullptr) {
            menu.addSeparator();
        } else {
            menu.addAction(action);
        }
    }
}

QAction* ViewPanel::add(const QString& name, const QString& text, const QKeySequence& key,
                        void (ViewPanel::*slot)())
{
    auto* const action = new QAction(text, this);
    action->setObjectName(name);
    action->setShortcut(key);
    // Letters and digits belong to the view, and are text elsewhere.
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(action, &QAction::triggered, this, slot);
    addAction(action);
    actionsOfView.append(action);
    return action;
}

QAction* ViewPanel::addSwitch(const QString& name, const QString& text, const QKeySequence& key, bool isOn,
                              void (ViewPanel::*slot)(bool))
{
    auto* const action = new QAction(text, this);
    action->setObjectName(name);
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    action->setCheckable(true);
    action->setChecked(isOn);
    connect(action, &QAction::toggled, this, slot);
    addAction(action);
    actionsOfView.append(action);
    return action;
}

void ViewPanel::makeActions()
{
    add(QStringLiteral("fitAll"), tr("Zoom to &All"), tr("A"), &ViewPanel::fitAll);
    add(QStringLiteral("fitSelection"), tr("&Zoom to Selected"), tr("F"), &ViewPanel::fitSelection);
    add(QStringLiteral("resetRepresentation"), tr("&Reset Representation"), QKeySequence(),
        &ViewPanel::resetSelected);
    actionsOfView.append(nullptr);
    add(QStringLiteral("lookOblique"), tr("From A&bove and the Side"), tr("0"), &ViewPanel::lookOblique);
    add(QStringLiteral("lookFromTop"), tr("From the &Top"), tr("7"), &ViewPanel::lookFromTop);
    add(QStringLiteral("lookFromFront"), tr("From the Sout&h"), tr("1"), &ViewPanel::lookFromFront);
    add(QStringLiteral("lookFromSide"), tr("From the &East"), tr("3"), &ViewPanel::lookFromSide);
    addSwitch(QStringLiteral("parallel"), tr("&Parallel Lines Stay Parallel"), tr("5"), false,
              &ViewPanel::setParallel);
    actionsOfView.append(nullptr);
    addSwitch(QStringLiteral("edges"), tr("E&dges"), tr("E"), true, &ViewPanel::setEdges);
    addSwitch(QStringLiteral("measure"), tr("&Measure"), tr("M"), false, &ViewPanel::setMeasuring);
    actionsOfView.append(nullptr);
    add(QStringLiteral("copyPicture"), tr("&Copy Picture"), QKeySequence::Copy, &ViewPanel::copyPicture);
    add(QStringLiteral("savePicture"), tr("&Save Picture..."), QKeySequence(), &ViewPanel::savePicture);
}

void ViewPanel::makeTools()
{
    QToolBar& movement = addTools(QStringLiteral("viewTools"));
    for (const char* const name : {"fitAll", "fitSelection", "lookFromTop", "edges", "measure"}) {
        movement.addAction(findChild<QAction*>(QLatin1String(name)));
    }
    coordinates = new QLabel;
    coordinates->setObjectName(QStringLiteral("coordinateSystem"));
    coordinates->setIndent(4);
    movement.addSeparator();
    movement.addWidget(coordinates);
    QToolBar& looks = addTools(QStringLiteral("lookTools"));
    makeLodTool(looks);
    makeThemeTool(looks);
    makeColourTool(looks);
    makeSectionTool(looks);
    section->setToolTip(sectionAxis->toolTip());
    for (QWidget* const tool :
         std::initializer_list<QWidget*>{lods, themes, attributes, sectionAxis, section}) {
        tool->setAccessibleName(tool->toolTip());
    }
}

/// A row of tools, below those that are there.
QToolBar& ViewPanel::addTools(const QString& name)
{
    auto* const bar = new QToolBar(this);
    bar->setObjectName(name);
    layout->addWidget(bar);
    return *bar;
}

void ViewPanel::makeLodTool(QToolBar& bar)
{
    lods = new QComboBox;
    lods->setObjectName(QStringLiteral("lod"));
    lods->setToolTip(tr("Level of detail"));
    lods->addItem(tr("Highest detail"));
    lods->addItem(tr("Lowest detail"));
    for (int lod = 0; lod < scene::lodCount; ++lod) {
        lods->addItem(tr("LOD %1").arg(lod));
    }
    connect(lods, qOverload<int>(&QComboBox::currentIndexChanged), this, &ViewPanel::chooseLod);
    bar.addWidget(lods);
}

void ViewPanel::makeThemeTool(QToolBar& bar)
{
    themes = new QComboBox;
    themes->setObjectName(QStringLiteral("theme"));
    themes->setToolTip(tr("Materials and textures"));
    themes->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    connect(themes, qOverload<int>(&QComboBox::currentIndexChanged), this, &ViewPanel::chooseTheme);
    bar.addWidget(themes);
}

void ViewPanel::makeColourTool(QToolBar& bar)
{
    attributes = new QComboBox;
    attributes->setObjectName(QStringLiteral("colourBy"));
    attributes->setToolTip(tr("Attribute that gives the colours"));
    attributes->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    attributes->setMinimumContentsLength(18);
    attributes->addItem(tr("Colours of the types"), QString());
    connect(attributes, qOverload<int>(&QComboBox::activated), this, &ViewPanel::chooseColours);
    bar.addWidget(attributes);
}

void ViewPanel::makeSectionTool(QToolBar& bar)
{
    sectionAxis = new QComboBox;
    sectionAxis->setObjectName(QStringLiteral("sectionAxis"));
    sectionAxis->setToolTip(tr("Plane that cuts the city open"));
    sectionAxis->addItems({tr("No section"), tr("From above"), tr("From the east"), tr("From the north")});
    section = new QSlider(Qt::Horizontal);
    section->setObjectName(QStringLiteral("section"));
    section->setRange(0, sectionSteps);
    section->setValue(sectionSteps);
    section->setMaximumWidth(120);
    section->setEnabled(false);
    connect(sectionAxis, qOverload<int>(&QComboBox::currentIndexChanged), this, &ViewPanel::moveSection);
    connect(section, &QSlider::valueChanged, this, &ViewPanel::moveSection);
    bar.addWidget(sectionAxis);
    bar.addWidget(section);
}

void ViewPanel::fitAll()
{
    city->fitAll();
}

void ViewPanel::fitSelection()
{
    city->fitSelection();
}

void ViewPanel::lookOblique()
{
    city->look(Camera::Direction::Oblique);
}

void ViewPanel::lookFromTop()
{
    city->look(Camera::Direction::Top);
}

void ViewPanel::lookFromFront()
{
    city->look(Camera::Direction::Front);
}

void ViewPanel::lookFromSide()
{
    city->look(Camera::Direction::Side);
}

void ViewPanel::setParallel(bool isParallel)
{
    city->setParallel(isParallel);
}

void ViewPanel::setEdges(bool areShown)
{
    scene::DrawOptions options = city->options();
    options.hasEdges = areShown;
    city->setOptions(options);
}

void ViewPanel::setMeasuring(bool isMeasuring)
{
    city->setPlacing(isMeasuring);
    marks->clearPlaces();
}

/// Makes anew what is drawn of the selected features.
void ViewPanel::resetSelected()
{
    const QVector<int> rows = selectedRows(document.selection());
    for (const int row : rows) {
        document.model().reset(document.model().index(row, 0));
    }
}

void ViewPanel::chooseLod(int index)
{
    LodChoice choice;
    if (index == 1) {
        choice.kind = LodChoice::Kind::Lowest;
    } else if (index > 1) {
        choice = {LodChoice::Kind::Fixed, index - 2};
    }
    sceneLink->scene().features().setLodChoice(choice);
    city->update();
}

void ViewPanel::chooseTheme(int index)
{
    if (index < 0) {
        return;
    }
    sceneLink->setTheme(themes->itemData(index).toString(), index > 0);
}

void ViewPanel::chooseColours()
{
    const QString path = attributes->currentData().toString();
    scene::DrawOptions options = city->options();
    options.isByFeature = !path.isEmpty();
    city->setOptions(options);
    sceneLink->colourBy(path);
}

void ViewPanel::showLegend()
{
    const QString& path = sceneLink->colourPath();
    marks->setLegend(path.section('/', -1), sceneLink->colours().legend());
}

/// Cuts off what lies beyond the place of the slider between the bounds of the city.
void ViewPanel::moveSection()
{
    scene::DrawOptions options = city->options();
    const osg::BoundingBoxd bounds = sceneLink->scene().bounds();
    const int axis = sectionAxis->currentIndex();
    section->setEnabled(axis > 0);
    options.section.reset();
    if (axis > 0 && bounds.valid()) {
        const int number = axis == 1 ? 2 : axis == 2 ? 0 : 1;
        osg::Vec3d normal;
        normal[number] = -1;
        const double part = static_cast<double>(section->value()) / sectionSteps;
        // The outermost surfaces are still there when the slider is at its end.
        const double margin = 1e-3 * (bounds.radius() + 1);
        const double place =
            bounds._min[number] - margin + part * (bounds._max[number] - bounds._min[number] + 2 * margin);
        options.section = osg::Plane(normal, place);
    }
    city->setOptions(options);
}

/// Sets the tools to what another document has.
void ViewPanel::showDocument()
{
    marks->clearPlaces();
    lookingForPaths.stop();
    sectionAxis->setCurrentIndex(0);
    section->setValue(sectionSteps);
    coordinates->setText(sceneLink->scene().coordinateSystem());
}

/// Offers what a document has, as soon as all of it has been looked at.
void ViewPanel::showFinished()
{
    fillThemes();
    paths = PropertyPaths();
    lookingForPaths.start(
        document.model().rowCount(), [this](int row) { paths.look(document.model(), row); },
        [this] { fillAttributes(); });
    emit told(tr("%L1 triangles").arg(sceneLink->scene().counts().triangles));
    const QStringList missing = sceneLink->scene().missingFiles();
    if (!missing.isEmpty()) {
        emit noticed(tr("Files that are missing, or cannot be drawn: %1")
                         .arg(missing.mid(0, 3).join(QStringLiteral(", "))));
    }
}

void ViewPanel::fillThemes()
{
    const QSignalBlocker blocker(themes);
    themes->clear();
    themes->addItem(tr("No appearance"));
    const scene::Looks& looks = sceneLink->scene().looks();
    for (const QString& theme : looks.themes()) {
        themes->addItem(theme.isEmpty() ? tr("Appearance without a name") : theme, theme);
    }
    themes->setCurrentIndex(looks.themes().isEmpty() ? 0 : 1 + looks.themes().indexOf(looks.theme()));
    themes->setEnabled(!looks.themes().isEmpty());
}

void ViewPanel::fillAttributes()
{
    const QString chosen = sceneLink->colourPath();
    attributes->clear();
    attributes->addItem(tr("Colours of the types"), QString());
    const QStringList sorted = paths.sorted();
    for (const QString& path : sorted) {
        attributes->addItem(path.section('/', 1), path);
    }
    if (!chosen.isEmpty() && attributes->findData(chosen) < 0) {
        attributes->addItem(chosen, chosen);
    }
    attributes->setCurrentIndex(attributes->findData(chosen));
}

void ViewPanel::copyPicture()
{
    QGuiApplication::clipboard()->setImage(city->picture(city->size() * city->devicePixelRatioF(), false));
}

void ViewPanel::savePicture()
{
    PictureDialog dialog(city->size() * city->devicePixelRatioF(), this);
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    QString path = QFileDialog::getSaveFileName(this, tr("Save Picture"), QString(), tr("Pictures (*.png)"));
    if (path.isEmpty()) {
        return;
    }
    if (!path.endsWith(QLatin1String(".png"), Qt::CaseInsensitive)) {
        path += QLatin1String(".png");
    }
    const QImage image = city->picture(dialog.pictureSize(), dialog.isClear());
    if (image.isNull()) {
        emit noticed(tr("A picture of that size cannot be drawn."));
    } else if (image.save(path, "PNG")) {
        emit told(tr("The picture is saved as %1.").arg(path));
    } else {
        emit noticed(tr("The picture could not be written to %1.").arg(path));
    }
}

} // namespace tolvik::viewer
