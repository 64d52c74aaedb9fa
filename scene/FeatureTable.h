#pragma once

#include "scene/Batch.h"
#include "scene/PointerMap.h"

#include <memory>
#include <osg/Image>
#include <osg/StateSet>
#include <osg/Texture2D>
#include <QColor>
#include <vector>

namespace gml {
class AbstractFeatureType;
}

namespace tolvik::scene {

using Feature = gml::AbstractFeatureType;

/// Which level of detail of a feature is shown.
struct LodChoice
{
    enum class Kind { Highest, Lowest, Fixed };

    Kind kind = Kind::Highest;
    int lod = 0; ///< of a fixed choice, 0 to 4

    friend bool operator==(const LodChoice& a, const LodChoice& b)
    {
        return a.kind == b.kind && (a.kind != Kind::Fixed || a.lod == b.lod);
    }
};

/// The features of a scene, with the state and the colour in which each is drawn. These lie in buffers that
/// the shaders read, a byte and a colour for each feature, so that a change of all features is one of the
/// buffers.
///
/// Surfaces that bound a feature, and openings in them, are one unit with it: one level of detail is shown of
/// all, so that a wall and the body that it bounds never lie upon each other in two of them.
class FeatureTable
{
public:
    FeatureTable();
    FeatureTable(const FeatureTable&) = delete;
    FeatureTable& operator=(const FeatureTable&) = delete;

    /// Makes room for so many features at once. Growing step by step stands still at each step, longer with
    /// each.
    void reserve(std::size_t count);
    /// Adds a feature, the one around it before it. It is selected where that one is.
    Slot add(const Feature& feature);
    /// Takes a feature out: it is not found any more, and never drawn.
    void remove(Slot slot);
    /// \return something large that is not used any more, to be let go where nobody waits for it
    std::shared_ptr<void> clear();

    std::size_t size() const { return features.size(); }
    /// noSlot for a feature that is not there.
    Slot slotOf(const Feature* feature) const;
    /// Null for one that was taken out.
    const Feature* featureOf(Slot slot) const { return slot < features.size() ? features[slot] : nullptr; }
    /// The innermost feature around one; noSlot for none.
    Slot parentOf(Slot slot) const { return parents[slot]; }
    /// The feature itself and all below it.
    std::vector<Slot> withBelow(const std::vector<Slot>& which) const;

    /// Notes that a feature has a piece in a level of detail; -1 is ignored.
    void addLod(Slot slot, int lod);
    /// Forgets the levels of detail that were noted for a feature.
    void clearLods(Slot slot) { lods[slot] = 0; }
    /// Whether some feature has a piece in the level of detail.
    bool hasLod(int lod) const;
    void setLodChoice(const LodChoice& choice);
    const LodChoice& lodChoice() const { return choice; }
    /// Whether the pieces of that level of detail are shown, were the feature not hidden.
    bool isLodShown(Slot slot, int lod) const;

    void setHidden(Slot slot, bool isHidden) { setBit(slot, HiddenBit, isHidden); }
    bool isHidden(Slot slot) const { return bit(slot, HiddenBit); }
    /// Selects these features, and those below them, and no others.
    void setSelection(const std::vector<Slot>& which);
    bool isSelected(Slot slot) const { return bit(slot, SelectedBit); }

    /// The feature around one that passes the value of an attribute on to it, where it has none itself;
    /// noSlot where there is none: the outermost features, the document itself, pass nothing on.
    Slot valueGiverOf(Slot slot) const;
    void setColour(Slot slot, const QColor& colour);
    /// Gives all features the colours of their types again.
    void resetColours();
    QColor colourOf(Slot slot) const;

    /// Hands the changes since the last call over to the shaders: what has come, the levels of detail that
    /// are shown, states and colours.
    void update();

    /// Makes the textures known to the shaders of what is drawn under the state.
    void bind(osg::StateSet& state) const;

private:
    enum Bit : std::uint8_t { HiddenBit = 1, SelectedBit = 2 };
    /// A shown level of detail plus 1 stands behind the bits.
    static constexpr int lodShift = 2;

    static bool isBoundary(const Feature& feature);
    void setBit(Slot slot, Bit bit, bool isSet);
    bool bit(Slot slot, Bit bit) const { return (states[slot] & bit) != 0; }
    int shownLod(Slot slot) const;
    void updateShownLods();

    std::vector<const Feature*> features;
    std::vector<Slot> parents;
    /// The feature that leads the unit of each.
    std::vector<Slot> units;
    /// A bit for each level of detail that a feature has pieces in.
    std::vector<std::uint8_t> lods;
    std::shared_ptr<PointerMap<Slot>> slotByFeature = std::make_shared<PointerMap<Slot>>();

    std::vector<std::uint8_t> states;
    std::vector<std::uint32_t> colours;
    /// As they were at first.
    std::vector<std::uint32_t> typeColours;
    std::vector<Slot> selection;
    LodChoice choice;
    bool areLodsOld = false;
    bool areStatesOld = false;
    bool areColoursOld = false;

    osg::ref_ptr<osg::Image> stateImage = new osg::Image;
    osg::ref_ptr<osg::Image> colourImage = new osg::Image;
    osg::ref_ptr<osg::Texture2D> stateTable;
    osg::ref_ptr<osg::Texture2D> colourTable;
};

} // namespace tolvik::scene
