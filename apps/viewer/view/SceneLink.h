#pragma once

#include "apps/viewer/features/SlicedWork.h"
#include "scene/AttributeColours.h"
#include "scene/CityScene.h"

#include <QElapsedTimer>
#include <QModelIndex>
#include <QObject>
#include <QSet>
#include <QTimer>
#include <vector>

namespace tolvik::viewer {

class Document;

/// Keeps a scene like the document of a window: its features, what of them is hidden and selected, and the
/// colours of an attribute. Features are added in slices, so that the window can be used meanwhile.
class SceneLink : public QObject
{
    Q_OBJECT

public:
    explicit SceneLink(Document& document, QObject* parent = nullptr);
    ~SceneLink() override;

    scene::CityScene& scene() { return *city; }
    /// Whether features are still being added, or made anew.
    bool isBusy() const { return work.isActive(); }
    /// Adds all that is left. For pictures that must show everything.
    void finish();

    /// Uses another theme of the document's appearances, or none.
    void setTheme(const QString& theme, bool isShown);

    /// The row of a feature in the document's list; -1 for none.
    int rowOf(scene::Slot slot) const;
    scene::Slot slotOfRow(int row) const;
    /// The features that are selected in the document.
    std::vector<scene::Slot> selectedFeatures() const;

    /// Gives each feature the colour of the value that it, or one around it, has for an attribute. The values
    /// are read in slices; coloursChanged() tells when the colours are there.
    /// \param path as apps::propertyAt() takes it; empty for the colours of the types
    void colourBy(const QString& path);
    const QString& colourPath() const { return attribute; }
    /// What the colours of the attribute mean.
    const scene::AttributeColours& colours() const { return attributeColours; }

signals:
    /// Something looks different now.
    void changed();
    /// Another document, or none, is being shown.
    void begun();
    /// \param part from 0 to 1
    void progressed(double part);
    /// All features of a document have been added.
    void finished();
    /// The colours of an attribute, or what they mean, are others now.
    void coloursChanged();

private:
    void begin();
    void clear();
    void workOn();
    void showTiles();
    void goOn();
    void takeState();
    void showVisibility(const QList<QModelIndex>& indexes);
    void showSelection();
    void addRows(int first, int last);
    void removeRows(int first, int last);
    void rebuild(const scene::Feature* feature);
    void noteEdit(const QModelIndex& first, const QModelIndex& last, const QVector<int>& roles);
    void takeEdits();
    void readColours();
    void readValue(scene::Slot slot);
    void findColours();
    void showColours(scene::AttributeColouring& colouring);
    QVariant valueOf(int row) const;

    Document& document;
    std::unique_ptr<scene::CityScene> city;
    QTimer work;
    QTimer edits;
    /// Since the last picture while features are added, which is there when the next slice begins.
    QElapsedTimer sincePicture;
    qint64 pictureTime = 0;
    QElapsedTimer sinceProgress;
    bool isPictureAwaited = false;
    bool areTilesNew = false;
    bool isComing = false;
    /// So many features have the visibility of the document.
    scene::Slot stateCount = 0;
    QSet<const scene::Feature*> edited;
    SlicedWork reading;
    std::vector<QVariant> values;
    QString attribute;
    scene::AttributeColours attributeColours;
};

} // namespace tolvik::viewer
