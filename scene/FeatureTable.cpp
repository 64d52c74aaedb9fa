#include "scene/FeatureTable.h"

#include "bldg/AbstractBoundarySurfaceType.hxx"
#include "bldg/AbstractOpeningType.hxx"
#include "brid/AbstractBoundarySurfaceType.hxx"
#include "brid/AbstractOpeningType.hxx"
#include "scene/Shaders.h"
#include "scene/TypeColours.h"
#include "tun/AbstractBoundarySurfaceType.hxx"
#include "tun/AbstractOpeningType.hxx"
#include "wtr/AbstractWaterBoundarySurfaceType.hxx"

#include <algorithm>
#include <typeindex>
#include <unordered_map>
#include <utility>

namespace tolvik::scene {

namespace {

/// Shown where every level of detail is to be left out.
constexpr int noLod = 6;

template <typename... Types>
bool isOneOf(const Feature& feature)
{
    return (... || (dynamic_cast<const Types*>(&feature) != nullptr));
}

std::uint32_t packed(const QColor& colour)
{
    return static_cast<std::uint32_t>(colour.red()) | static_cast<std::uint32_t>(colour.green()) << 8 |
           static_cast<std::uint32_t>(colour.blue()) << 16;
}

constexpr std::uint32_t colourBits = 0xffffff;
/// The highest byte of a colour tells how many features are around its feature.
constexpr int levelShift = 24;
constexpr std::uint32_t deepestLevel = 255;

/// A texture that is no picture but a table: texels are looked up by their numbers.
osg::ref_ptr<osg::Texture2D> makeTable(osg::Image* image, GLint internalFormat, GLenum format)
{
    osg::ref_ptr<osg::Texture2D> table = new osg::Texture2D(image);
    table->setInternalFormat(internalFormat);
    table->setSourceFormat(format);
    table->setSourceType(GL_UNSIGNED_BYTE);
    table->setFilter(osg::Texture::MIN_FILTER, osg::Texture::NEAREST);
    table->setFilter(osg::Texture::MAG_FILTER, osg::Texture::NEAREST);
    table->setResizeNonPowerOfTwoHint(false);
    table->setUnRefImageDataAfterApply(false);
    return table;
}

/// Copies values into the rows of an image, which grows by doubling, so that coming features are not a new
/// texture each.
template <typename Value>
void copyTo(osg::Image& image, const std::vector<Value>& values, GLenum format)
{
    int rows = std::max(1, image.t());
    while (static_cast<std::size_t>(rows) * tableWidth < values.size()) {
        rows *= 2;
    }
    if (rows != image.t()) {
        image.allocateImage(tableWidth, rows, 1, format, GL_UNSIGNED_BYTE, 1);
    }
    if (!values.empty()) {
        std::copy(values.begin(), values.end(), reinterpret_cast<Value*>(image.data()));
    }
    image.dirty();
}

} // namespace

FeatureTable::FeatureTable()
{
    copyTo(*stateImage, states, GL_RED_INTEGER_EXT);
    copyTo(*colourImage, colours, GL_RGBA);
    stateTable = makeTable(stateImage, GL_R8UI, GL_RED_INTEGER_EXT);
    colourTable = makeTable(colourImage, GL_RGBA8, GL_RGBA);
}

void FeatureTable::reserve(std::size_t count)
{
    features.reserve(count);
    parents.reserve(count);
    units.reserve(count);
    lods.reserve(count);
    states.reserve(count);
    colours.reserve(count);
    typeColours.reserve(count);
}

Slot FeatureTable::add(const Feature& feature)
{
    const auto slot = static_cast<Slot>(features.size());
    const xml_schema::type_base* const container = feature._container();
    const auto* const object = dynamic_cast<const xml_schema::type*>(container);
    const Slot parent = object != nullptr ? slotOf(citygml::featureAround(*object)) : noSlot;
    features.push_back(&feature);
    parents.push_back(parent);
    units.push_back(parent != noSlot && isBoundary(feature) ? units[parent] : slot);
    lods.push_back(0);
    states.push_back(parent != noSlot && isSelected(parent) ? SelectedBit : 0);
    const std::uint32_t level = parent != noSlot ? (colours[parent] >> levelShift) + 1 : 0;
    colours.push_back(packed(TypeColours::of(feature)) | std::min(level, deepestLevel) << levelShift);
    typeColours.push_back(colours.back());
    slotByFeature->set(&feature, slot);
    areLodsOld = areStatesOld = areColoursOld = true;
    return slot;
}

void FeatureTable::remove(Slot slot)
{
    slotByFeature->erase(features[slot]);
    features[slot] = nullptr;
    lods[slot] = 0;
    setHidden(slot, true);
    selection.erase(std::remove(selection.begin(), selection.end(), slot), selection.end());
    setBit(slot, SelectedBit, false);
    areLodsOld = true;
}

std::shared_ptr<void> FeatureTable::clear()
{
    features.clear();
    parents.clear();
    units.clear();
    lods.clear();
    states.clear();
    colours.clear();
    typeColours.clear();
    selection.clear();
    return std::exchange(slotByFeature, std::make_shared<PointerMap<Slot>>());
}

Slot FeatureTable::slotOf(const Feature* feature) const
{
    const Slot* const found = slotByFeature->find(feature);
    return found != nullptr ? *found : noSlot;
}

std::vector<Slot> FeatureTable::withBelow(const std::vector<Slot>& of) const
{
    std::vector<bool> isIn(features.size());
    for (const Slot slot : of) {
        isIn[slot] = true;
    }
    std::vector<Slot> result;
    for (Slot slot = 0; slot < features.size(); ++slot) {
        // A feature comes after the one around it.
        isIn[slot] = isIn[slot] || (parents[slot] != noSlot && isIn[parents[slot]]);
        if (isIn[slot] && features[slot] != nullptr) {
            result.push_back(slot);
        }
    }
    return result;
}

/// Whether a feature is a surface that bounds the one around it, or an opening in such a surface.
bool FeatureTable::isBoundary(const Feature& feature)
{
    static std::unordered_map<std::type_index, bool> known;
    const auto found = known.find(typeid(feature));
    if (found != known.end()) {
        return found->second;
    }
    const bool is = isOneOf<bldg::AbstractBoundarySurfaceType, bldg::AbstractOpeningType,
                            brid::AbstractBoundarySurfaceType, brid::AbstractOpeningType,
                            tun::AbstractBoundarySurfaceType, tun::AbstractOpeningType,
                            wtr::AbstractWaterBoundarySurfaceType>(feature);
    return known.emplace(typeid(feature), is).first->second;
}

void FeatureTable::addLod(Slot slot, int lod)
{
    if (lod >= 0) {
        lods[slot] = static_cast<std::uint8_t>(lods[slot] | 1 << lod);
        areLodsOld = true;
    }
}

bool FeatureTable::hasLod(int lod) const
{
    return std::any_of(lods.begin(), lods.end(), [lod](std::uint8_t bits) { return (bits >> lod & 1) != 0; });
}

void FeatureTable::setLodChoice(const LodChoice& wanted)
{
    choice = wanted;
    areLodsOld = true;
}

int FeatureTable::shownLod(Slot slot) const
{
    return (states[slot] >> lodShift) - 1;
}

bool FeatureTable::isLodShown(Slot slot, int lod) const
{
    return lod < 0 || lod == shownLod(slot);
}

void FeatureTable::updateShownLods()
{
    // Of each unit, at the feature that leads it: all levels of detail in it.
    std::vector<std::uint8_t> ofUnit(features.size());
    for (Slot slot = 0; slot < features.size(); ++slot) {
        ofUnit[units[slot]] = static_cast<std::uint8_t>(ofUnit[units[slot]] | lods[slot]);
    }
    for (Slot slot = 0; slot < features.size(); ++slot) {
        const std::uint8_t bits = ofUnit[units[slot]];
        int shown = choice.kind == LodChoice::Kind::Fixed ? choice.lod : noLod;
        for (int lod = 0; lod < lodCount && choice.kind != LodChoice::Kind::Fixed; ++lod) {
            if ((bits >> lod & 1) != 0 && (choice.kind == LodChoice::Kind::Highest || shown == noLod)) {
                shown = lod;
            }
        }
        const int flags = states[slot] & ((1 << lodShift) - 1);
        states[slot] = static_cast<std::uint8_t>(flags | (shown + 1) << lodShift);
    }
    areStatesOld = true;
}

void FeatureTable::setBit(Slot slot, Bit bit, bool isSet)
{
    const int state = isSet ? states[slot] | bit : states[slot] & ~bit;
    if (state != states[slot]) {
        states[slot] = static_cast<std::uint8_t>(state);
        areStatesOld = true;
    }
}

void FeatureTable::setSelection(const std::vector<Slot>& wanted)
{
    selection = wanted;
    for (Slot slot = 0; slot < features.size(); ++slot) {
        setBit(slot, SelectedBit, false);
    }
    for (const Slot slot : wanted) {
        setBit(slot, SelectedBit, true);
    }
    for (Slot slot = 0; slot < features.size(); ++slot) {
        if (parents[slot] != noSlot && isSelected(parents[slot])) {
            setBit(slot, SelectedBit, true);
        }
    }
}

Slot FeatureTable::valueGiverOf(Slot slot) const
{
    const Slot parent = parents[slot];
    return parent != noSlot && parents[parent] != noSlot ? parent : noSlot;
}

void FeatureTable::setColour(Slot slot, const QColor& colour)
{
    colours[slot] = packed(colour) | (colours[slot] & ~colourBits);
    areColoursOld = true;
}

void FeatureTable::resetColours()
{
    std::copy(typeColours.begin(), typeColours.end(), colours.begin());
    areColoursOld = true;
}

QColor FeatureTable::colourOf(Slot slot) const
{
    const auto part = [this, slot](int shift) { return static_cast<int>(colours[slot] >> shift & 0xff); };
    return QColor(part(0), part(8), part(16));
}

void FeatureTable::update()
{
    if (areLodsOld) {
        updateShownLods();
    }
    if (areStatesOld) {
        copyTo(*stateImage, states, GL_RED_INTEGER_EXT);
    }
    if (areColoursOld) {
        copyTo(*colourImage, colours, GL_RGBA);
    }
    areLodsOld = areStatesOld = areColoursOld = false;
}

void FeatureTable::bind(osg::StateSet& state) const
{
    state.setTextureAttribute(stateUnit, stateTable);
    state.setTextureAttribute(colourUnit, colourTable);
    state.addUniform(new osg::Uniform("stateOf", stateUnit));
    state.addUniform(new osg::Uniform("colourOf", colourUnit));
}

} // namespace tolvik::scene
