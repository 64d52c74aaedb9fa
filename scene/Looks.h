#pragma once

#include "scene/PointerMap.h"
#include "scene/TileMesh.h"

#include <array>
#include <map>
#include <memory>
#include <osg/StateSet>
#include <QString>
#include <QStringList>
#include <unordered_map>
#include <utility>
#include <vector>

namespace app {
class AbstractSurfaceDataType;
class AbstractTextureType;
class AppearanceType;
class GeoreferencedTextureType;
class ParameterizedTextureType;
class TextureAssociationType;
class X3DMaterialType;
} // namespace app

namespace gml {
class AbstractFeatureType;
}

namespace tex {
class AbstractAppearanceType;
class MaterialType;
class SimpleTextureType;
} // namespace tex

namespace tolvik::scene {

/// The materials and textures that a document gives to its surfaces, for one theme at a time.
/// \code
/// looks.begin(folder);
/// for (feature of the document) {
///     looks.note(feature);
/// }
/// while (looks.readNext()) {
/// }
/// \endcode
class Looks
{
public:
    /// Begins with another document.
    /// \param folder where the pictures lie
    void begin(const DocumentFolder& folder);
    /// Takes note of a feature. Nothing but appearances matters.
    /// \return whether it is one, so that everything is to be read anew
    bool note(const gml::AbstractFeatureType& feature);
    /// Forgets a feature that goes.
    /// \return whether it is an appearance, so that everything is to be read anew
    bool forget(const gml::AbstractFeatureType& feature);
    /// Begins to read the theme in use anew.
    void restart();
    /// Reads the next target of the theme in use. It takes no longer, however large an appearance is.
    /// \return whether there are more
    bool readNext();

    /// Names of the themes in the order of the document; that of appearances without a name is empty.
    const QStringList& themes() const { return themeNames; }
    /// The theme in use: the first until one is chosen.
    const QString& theme() const { return shownTheme; }
    /// Uses the appearances of another theme, or none, which are to be read.
    void setTheme(const QString& theme, bool isShown = true);
    bool isShown() const { return isThemeShown; }

    /// The look of a piece, the innermost object counting before those around it; 0 for none. One that a
    /// textured surface has in itself, in no theme, is shown where no appearance tells another one; it may be
    /// new in arrays().
    std::uint32_t lookOf(const citygml::GeometryPiece& piece);
    /// Appends where in its texture each position of a piece lies.
    /// \param look that of the piece
    void appendPlaces(const citygml::GeometryPiece& piece, std::uint32_t look,
                      std::vector<std::array<float, 2>>& places) const;

    /// By the numbers of the looks.
    const std::vector<LookArrays>& arrays() const { return kinds; }
    /// How faces of a look are drawn. Made when it is first asked for; used on one thread.
    osg::ref_ptr<osg::StateSet> stateOf(std::uint32_t look);

    /// The pictures, as the document names them, that were not found or could not be read. Some may turn out
    /// only when they are drawn.
    const QStringList& missing() const { return missingImages; }

private:
    using Matrix = std::array<double, 12>;
    struct Texture
    {
        QString uri;
        QString wrapMode;
        std::array<float, 4> border = {0, 0, 0, 0};
        std::shared_ptr<Picture> picture;
        /// Of one that is laid over the ground: takes a position to its place in the picture.
        std::shared_ptr<Matrix> ground;
    };
    struct Target
    {
        std::uint32_t look = 0;
        /// Takes a position to a place in the texture; null where rings tell the places.
        std::shared_ptr<Matrix> matrix;
    };
    /// Where the reading is.
    struct Cursor
    {
        std::size_t appearance = 0;
        std::size_t member = 0;
        std::size_t target = 0;
        /// That of the member.
        std::uint32_t look = 0;
    };

    bool isInTheme(const app::AppearanceType& appearance) const;
    std::uint32_t addLook(const app::AbstractSurfaceDataType& data);
    std::uint32_t addMaterialLook(const app::X3DMaterialType& material);
    std::uint32_t addTextureLook(const app::AbstractTextureType& texture);
    bool addTarget(const app::AbstractSurfaceDataType& data, std::size_t number);
    void addAssociation(const app::TextureAssociationType& association);
    std::uint32_t lookOfTextured(const tex::AbstractAppearanceType& appearance);
    std::uint32_t addPicture(Texture made);
    std::shared_ptr<Picture> pictureOf(const QString& uri);
    static void appendOwnPlaces(const citygml::GeometryPiece& piece,
                                std::vector<std::array<float, 2>>& places);
    static void setTexture(osg::StateSet& state, const Texture& texture);
    void noteTheme(const QString& theme);
    void noteMissing(const QString& uri);
    std::shared_ptr<Matrix> worldMatrixOf(const app::GeoreferencedTextureType& texture,
                                          const Texture& made) const;
    const Target* targetOf(const citygml::GeometryPiece& piece) const;

    DocumentFolder folder;
    /// In the order of the document; null for one that has gone.
    std::vector<const app::AppearanceType*> appearances;
    std::unordered_map<const gml::AbstractFeatureType*, std::size_t> numbers;
    QStringList themeNames;
    QString shownTheme;
    bool isThemeShown = true;
    bool isThemeChosen = false;
    Cursor cursor;

    std::vector<LookArrays> kinds = {LookArrays()};
    std::map<std::uint32_t, Texture> textures;
    std::map<std::uint32_t, osg::ref_ptr<osg::StateSet>> states;
    /// Of textured surfaces: by the colour, and by the name of the picture and whether it is repeated.
    /// @{
    std::map<std::array<std::uint8_t, 4>, std::uint32_t> looksOfColours;
    std::map<std::pair<QString, bool>, std::uint32_t> looksOfPictures;
    /// @}
    std::map<QString, std::shared_ptr<Picture>> pictures;
    PointerMap<Target> materialTargets;
    PointerMap<Target> textureTargets;
    /// Of each ring: two numbers for each position.
    PointerMap<const std::vector<float>*> ringPlaces;
    std::vector<std::unique_ptr<std::vector<float>>> placeLists;
    QStringList missingImages;
};

} // namespace tolvik::scene
