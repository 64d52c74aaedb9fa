#pragma once

#include "scene/Images.h"
#include "scene/TileMesh.h"

#include <array>
#include <map>
#include <memory>
#include <osg/StateSet>
#include <QString>
#include <QStringList>
#include <unordered_map>
#include <vector>

namespace app {
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

namespace tolvik::scene {

/// The materials and textures that a document gives to its surfaces, for one theme at a time.
class Looks
{
public:
    /// Finds the themes of a document.
    /// \param features all features of the document
    /// \param folder   where the pictures lie
    void read(const std::vector<const gml::AbstractFeatureType*>& features, const DocumentFolder& folder);
    void clear();

    /// Names of the themes in the order of the document; that of appearances without a name is empty.
    const QStringList& themes() const { return themeNames; }
    /// The theme in use: the first at first.
    const QString& theme() const { return shownTheme; }
    /// Uses the appearances of another theme, or none.
    void setTheme(const QString& theme, bool isShown = true);
    bool isShown() const { return isThemeShown; }

    /// The look of a piece, the innermost object counting before those around it; 0 for none.
    std::uint32_t lookOf(const citygml::GeometryPiece& piece) const;
    /// Appends where in its texture each position of a piece lies.
    /// \param look that of the piece
    void appendPlaces(const citygml::GeometryPiece& piece, std::uint32_t look,
                      std::vector<std::array<float, 2>>& places) const;

    /// By the numbers of the looks.
    const std::vector<LookArrays>& arrays() const { return kinds; }
    /// How faces of a look are drawn. Made when it is first asked for; used on one thread.
    osg::ref_ptr<osg::StateSet> stateOf(std::uint32_t look);

    /// The pictures, as the document names them, that were not found or could not be read.
    const QStringList& missing() const { return missingImages; }

private:
    using Matrix = std::array<double, 12>;
    struct Texture
    {
        QString uri;
        QString wrapMode;
        std::array<float, 4> border = {0, 0, 0, 0};
        osg::ref_ptr<osg::Image> image;
        /// Of a texture that is laid over the ground: takes a position to columns and rows of the picture.
        std::shared_ptr<Matrix> world;
    };
    struct Target
    {
        std::uint32_t look = 0;
        /// Takes a position to a place in the texture; null where rings tell the places.
        std::shared_ptr<Matrix> matrix;
    };

    void rebuild();
    void add(const app::AppearanceType& appearance);
    void addMaterial(const app::X3DMaterialType& material);
    void addTexture(const app::ParameterizedTextureType& texture);
    void addTexture(const app::GeoreferencedTextureType& texture);
    void addAssociation(const app::TextureAssociationType& association, std::uint32_t look);
    std::uint32_t addTextureLook(const app::AbstractTextureType& texture);
    std::shared_ptr<Matrix> worldMatrixOf(const app::GeoreferencedTextureType& texture,
                                          const Texture& made) const;
    const Target* targetOf(const citygml::GeometryPiece& piece) const;

    DocumentFolder folder;
    std::vector<const app::AppearanceType*> appearances;
    QStringList themeNames;
    QString shownTheme;
    bool isThemeShown = true;

    std::vector<LookArrays> kinds = {LookArrays()};
    std::map<std::uint32_t, Texture> textures;
    std::map<std::uint32_t, osg::ref_ptr<osg::StateSet>> states;
    std::map<QString, osg::ref_ptr<osg::Image>> images;
    std::unordered_map<const void*, Target> materialTargets;
    std::unordered_map<const void*, Target> textureTargets;
    /// Of each ring: two numbers for each position.
    std::unordered_map<const void*, const std::vector<float>*> ringPlaces;
    std::vector<std::unique_ptr<std::vector<float>>> placeLists;
    QStringList missingImages;
};

} // namespace tolvik::scene
