#include "scene/Looks.h"

#include "app/AppearanceType.hxx"
#include "app/Color.hxx"
#include "app/ColorPlusOpacity.hxx"
#include "app/GeoreferencedTextureType.hxx"
#include "app/ParameterizedTextureType.hxx"
#include "app/SurfaceDataPropertyType.hxx"
#include "app/TexCoordGenType.hxx"
#include "app/TexCoordListType.hxx"
#include "app/TextureAssociationType.hxx"
#include "app/textureCoordinates.hxx"
#include "app/worldToTexture.hxx"
#include "app/WrapModeType.hxx"
#include "app/X3DMaterialType.hxx"
#include "core/doubleBetween0and1.hxx"
#include "core/TransformationMatrix2x2Type.hxx"
#include "gml/DirectPositionType.hxx"
#include "gml/PointPropertyType.hxx"
#include "gml/PointType.hxx"
#include "gml/SignType.hxx"
#include "scene/Shaders.h"
#include "tex/AppearancePropertyType.hxx"
#include "tex/Color.hxx"
#include "tex/MaterialType.hxx"
#include "tex/SimpleTextureType.hxx"
#include "tex/TexturedSurfaceType.hxx"

#include <algorithm>
#include <cmath>
#include <optional>
#include <osg/Texture2D>
#include <QFile>
#include <QFileInfo>
#include <typeinfo>
#include <utility>

namespace tolvik::scene {

namespace {

constexpr std::uint32_t noLook = 0;

QString themeOf(const app::AppearanceType& appearance)
{
    return appearance.theme().present() ? QString::fromStdString(*appearance.theme()) : QString();
}

/// The object of the document that a reference names; null for one to somewhere else.
const void* objectOf(const xml_schema::type& from, const std::string& uri)
{
    return uri.size() > 1 && uri[0] == '#' ? citygml::findById(from, uri.substr(1)) : nullptr;
}

/// What a property holds or refers to; null for nothing.
const app::AbstractSurfaceDataType* surfaceDataOf(const app::SurfaceDataPropertyType& property)
{
    if (property._SurfaceData().present()) {
        return &*property._SurfaceData();
    }
    const void* const object = property.href().present() ? objectOf(property, *property.href()) : nullptr;
    return dynamic_cast<const app::AbstractSurfaceDataType*>(static_cast<const xml_schema::type*>(object));
}

std::uint8_t byteOf(double part)
{
    return static_cast<std::uint8_t>(std::lround(std::clamp(part, 0.0, 1.0) * 255));
}

/// Red, green, blue and opacity of a material.
template <typename Material>
std::array<std::uint8_t, 4> colourOf(const Material& material)
{
    // What the schema says of a material without a colour.
    std::array<double, 3> colour = {0.8, 0.8, 0.8};
    if (material.diffuseColor().present() && material.diffuseColor()->size() == 3) {
        std::copy(material.diffuseColor()->begin(), material.diffuseColor()->end(), colour.begin());
    }
    const double clear =
        material.transparency().present() ? static_cast<double>(*material.transparency()) : 0;
    return {byteOf(colour[0]), byteOf(colour[1]), byteOf(colour[2]), byteOf(1 - clear)};
}

/// What a property of a textured surface holds or refers to; null for nothing.
const tex::AbstractAppearanceType* appearanceOf(const tex::AppearancePropertyType& property)
{
    if (property._Appearance().present()) {
        return &*property._Appearance();
    }
    const void* const object = property.href().present() ? objectOf(property, *property.href()) : nullptr;
    return dynamic_cast<const tex::AbstractAppearanceType*>(static_cast<const xml_schema::type*>(object));
}

/// What the innermost textured surface around a piece has on its front; null for none.
const tex::AbstractAppearanceType* appearanceOn(const citygml::GeometryPiece& piece)
{
    for (auto object = piece.objects.rbegin(); object != piece.objects.rend(); ++object) {
        const xml_schema::type& around = **object;
        if (typeid(around) != typeid(tex::TexturedSurfaceType)) {
            continue;
        }
        for (const auto& property : static_cast<const tex::TexturedSurfaceType&>(around).appearance()) {
            if (static_cast<const std::string&>(property.orientation()) != "-") {
                return appearanceOf(property);
            }
        }
    }
    return nullptr;
}

/// Six numbers that tell where a picture lies: the world coordinates of a step to the right, one downwards,
/// and of the centre of the upper left pixel.
struct WorldFile
{
    std::array<double, 2> right;
    std::array<double, 2> down;
    std::array<double, 2> corner;
};

std::optional<WorldFile> readWorldFile(const DocumentFolder& folder, const QString& imageUri)
{
    const int dot = imageUri.lastIndexOf('.');
    if (dot < 0 || imageUri.size() < dot + 3) {
        return std::nullopt;
    }
    // Such as `.pgw` beside `.png`.
    const QString name = imageUri.left(dot + 2) + imageUri.right(1) + 'w';
    QFile file(folder.find(name));
    if (file.fileName().isEmpty() || !file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    std::array<double, 6> numbers = {};
    const QList<QByteArray> lines = file.read(4096).simplified().split(' ');
    for (int i = 0; i < 6; ++i) {
        bool isNumber = false;
        numbers[static_cast<std::size_t>(i)] = lines.value(i).toDouble(&isNumber);
        if (!isNumber) {
            return std::nullopt;
        }
    }
    return WorldFile{{numbers[0], numbers[1]}, {numbers[2], numbers[3]}, {numbers[4], numbers[5]}};
}

std::optional<WorldFile> worldFileOf(const app::GeoreferencedTextureType& texture)
{
    const bool isWhole = texture.orientation().present() && texture.orientation()->size() == 4 &&
                         texture.referencePoint().present() && texture.referencePoint()->Point().present();
    if (!isWhole || !texture.referencePoint()->Point()->pos().present() ||
        texture.referencePoint()->Point()->pos()->size() < 2) {
        return std::nullopt;
    }
    const auto& turn = *texture.orientation();
    const auto& point = *texture.referencePoint()->Point()->pos();
    return WorldFile{{turn[0], turn[2]}, {turn[1], turn[3]}, {point[0], point[1]}};
}

} // namespace

void Looks::begin(const DocumentFolder& documentFolder)
{
    folder = documentFolder;
    appearances.clear();
    numbers.clear();
    themeNames.clear();
    shownTheme.clear();
    isThemeShown = true;
    isThemeChosen = false;
    pictures.clear();
    restart();
}

bool Looks::note(const gml::AbstractFeatureType& feature)
{
    const auto* const appearance = dynamic_cast<const app::AppearanceType*>(&feature);
    if (appearance == nullptr) {
        return false;
    }
    if (numbers.emplace(appearance, appearances.size()).second) {
        appearances.push_back(appearance);
    }
    noteTheme(themeOf(*appearance));
    return true;
}

void Looks::noteTheme(const QString& theme)
{
    if (themeNames.isEmpty() && !isThemeChosen) {
        shownTheme = theme;
    }
    if (!themeNames.contains(theme)) {
        themeNames << theme;
    }
}

bool Looks::forget(const gml::AbstractFeatureType& feature)
{
    const auto found = numbers.find(&feature);
    if (found == numbers.end()) {
        return false;
    }
    appearances[found->second] = nullptr;
    numbers.erase(found);
    return true;
}

void Looks::setTheme(const QString& theme, bool isShown)
{
    shownTheme = theme;
    isThemeShown = isShown;
    isThemeChosen = true;
    restart();
}

void Looks::restart()
{
    cursor = Cursor();
    kinds = {LookArrays()};
    textures.clear();
    states.clear();
    looksOfColours.clear();
    looksOfPictures.clear();
    materialTargets.clear();
    textureTargets.clear();
    ringPlaces.clear();
    placeLists.clear();
    missingImages.clear();
}

bool Looks::isInTheme(const app::AppearanceType& appearance) const
{
    return isThemeShown && themeOf(appearance) == shownTheme;
}

bool Looks::readNext()
{
    if (cursor.appearance == appearances.size()) {
        return false;
    }
    const app::AppearanceType* const appearance = appearances[cursor.appearance];
    if (appearance == nullptr || !isInTheme(*appearance) ||
        cursor.member >= appearance->surfaceDataMember().size()) {
        cursor = {cursor.appearance + 1, 0, 0, noLook};
        return true;
    }
    const app::AbstractSurfaceDataType* const data =
        surfaceDataOf(appearance->surfaceDataMember()[cursor.member]);
    if (data != nullptr && cursor.target == 0) {
        cursor.look = addLook(*data);
    }
    if (data != nullptr && cursor.look != noLook && addTarget(*data, cursor.target)) {
        ++cursor.target;
    } else {
        cursor = {cursor.appearance, cursor.member + 1, 0, noLook};
    }
    return true;
}

/// \return noLook for what is not shown
std::uint32_t Looks::addLook(const app::AbstractSurfaceDataType& data)
{
    // Of surfaces with two sides the front is shown.
    if (data.isFront().present() && !data.isFront().get()) {
        return noLook;
    }
    if (const auto* const material = dynamic_cast<const app::X3DMaterialType*>(&data)) {
        return addMaterialLook(*material);
    }
    const auto* const texture = dynamic_cast<const app::AbstractTextureType*>(&data);
    return texture != nullptr ? addTextureLook(*texture) : noLook;
}

std::uint32_t Looks::addMaterialLook(const app::X3DMaterialType& material)
{
    kinds.push_back({LookKind::Material, colourOf(material), nullptr});
    return static_cast<std::uint32_t>(kinds.size() - 1);
}

std::uint32_t Looks::addTextureLook(const app::AbstractTextureType& texture)
{
    Texture made;
    made.uri = QString::fromStdString(texture.imageURI()).trimmed();
    if (texture.wrapMode().present()) {
        made.wrapMode = QString::fromStdString(*texture.wrapMode());
    }
    if (texture.borderColor().present()) {
        std::copy_n(texture.borderColor()->begin(), std::min<std::size_t>(4, texture.borderColor()->size()),
                    made.border.begin());
    }
    if (const auto* const ground = dynamic_cast<const app::GeoreferencedTextureType*>(&texture)) {
        made.picture = pictureOf(made.uri);
        made.ground = made.picture != nullptr ? worldMatrixOf(*ground, made) : nullptr;
        if (made.ground == nullptr) {
            return noLook;
        }
    }
    return addPicture(made);
}

/// The picture of that name; null, and noted as missing, where there is none.
std::shared_ptr<Picture> Looks::pictureOf(const QString& uri)
{
    std::shared_ptr<Picture>& picture = pictures[uri];
    if (picture == nullptr) {
        picture = std::make_shared<Picture>(folder.find(uri));
    }
    if (picture->size().isEmpty()) {
        noteMissing(uri);
        return nullptr;
    }
    return picture;
}

std::uint32_t Looks::addPicture(Texture made)
{
    made.picture = pictureOf(made.uri);
    if (made.picture == nullptr) {
        return noLook;
    }
    const auto look = static_cast<std::uint32_t>(kinds.size());
    kinds.push_back({LookKind::Texture, {255, 255, 255, 255}, made.picture});
    textures[look] = std::move(made);
    return look;
}

/// The look of what a textured surface has in itself.
std::uint32_t Looks::lookOfTextured(const tex::AbstractAppearanceType& appearance)
{
    if (const auto* const material = dynamic_cast<const tex::MaterialType*>(&appearance)) {
        const auto [found, isNew] = looksOfColours.try_emplace(colourOf(*material), kinds.size());
        if (isNew) {
            kinds.push_back({LookKind::Material, found->first, nullptr});
        }
        return found->second;
    }
    const auto* const texture = dynamic_cast<const tex::SimpleTextureType*>(&appearance);
    if (texture == nullptr) {
        return noLook;
    }
    Texture made;
    made.uri = QString::fromStdString(texture->textureMap()).trimmed();
    const bool isRepeated = texture->repeat().present() && texture->repeat().get();
    made.wrapMode = isRepeated ? QStringLiteral("wrap") : QStringLiteral("none");
    const auto [found, isNew] = looksOfPictures.try_emplace({made.uri, isRepeated}, noLook);
    if (isNew) {
        found->second = addPicture(made);
    }
    return found->second;
}

void Looks::noteMissing(const QString& uri)
{
    if (!missingImages.contains(uri)) {
        missingImages << uri;
    }
}

/// Adds a target to the look that is being read.
/// \return false where there is none of that number
bool Looks::addTarget(const app::AbstractSurfaceDataType& data, std::size_t number)
{
    if (const auto* const material = dynamic_cast<const app::X3DMaterialType*>(&data)) {
        if (number < material->target().size()) {
            materialTargets.set(objectOf(data, material->target()[number]), {cursor.look, nullptr});
            return true;
        }
    } else if (const auto* const ground = dynamic_cast<const app::GeoreferencedTextureType*>(&data)) {
        if (number < ground->target().size()) {
            textureTargets.set(objectOf(data, ground->target()[number]),
                               {cursor.look, textures[cursor.look].ground});
            return true;
        }
    } else if (const auto* const texture = dynamic_cast<const app::ParameterizedTextureType*>(&data)) {
        if (number < texture->target().size()) {
            addAssociation(texture->target()[number]);
            return true;
        }
    }
    return false;
}

void Looks::addAssociation(const app::TextureAssociationType& association)
{
    Target target = {cursor.look, nullptr};
    const xml_schema::type* parameters = nullptr;
    if (association._TextureParameterization().present()) {
        parameters = &*association._TextureParameterization();
    } else if (association.href().present()) {
        parameters = static_cast<const xml_schema::type*>(objectOf(association, *association.href()));
    }
    if (const auto* const list = dynamic_cast<const app::TexCoordListType*>(parameters)) {
        for (const app::textureCoordinates& coordinates : list->textureCoordinates()) {
            placeLists.push_back(
                std::make_unique<std::vector<float>>(coordinates.begin(), coordinates.end()));
            ringPlaces.set(objectOf(association, coordinates.ring()), placeLists.back().get());
        }
    } else if (const auto* const world = dynamic_cast<const app::TexCoordGenType*>(parameters)) {
        const app::worldToTexture& numbers = world->worldToTexture();
        if (numbers.size() == 12) {
            target.matrix = std::make_shared<Matrix>();
            std::copy(numbers.begin(), numbers.end(), target.matrix->begin());
        }
    }
    textureTargets.set(objectOf(association, association.uri()), target);
}

/// Takes a position to its place in a picture that lies flat on the ground; null where nothing says how.
std::shared_ptr<Looks::Matrix> Looks::worldMatrixOf(const app::GeoreferencedTextureType& texture,
                                                    const Texture& made) const
{
    const bool isFilePreferred = !texture.preferWorldFile().present() || texture.preferWorldFile().get();
    std::optional<WorldFile> world = isFilePreferred ? readWorldFile(folder, made.uri) : std::nullopt;
    if (!world) {
        world = worldFileOf(texture);
    }
    const double area = world ? world->right[0] * world->down[1] - world->down[0] * world->right[1] : 0;
    if (area == 0) {
        return nullptr;
    }
    const double width = made.picture->size().width();
    const double height = made.picture->size().height();
    const auto& [right, down, corner] = *world;
    // Columns and rows are counted from the centre of the upper left pixel.
    const std::array<double, 2> column = {down[1] / area, -down[0] / area};
    const std::array<double, 2> row = {-right[1] / area, right[0] / area};
    const double column0 = -(column[0] * corner[0] + column[1] * corner[1]) + 0.5;
    const double row0 = -(row[0] * corner[0] + row[1] * corner[1]) + 0.5;
    return std::make_shared<Matrix>(Matrix{column[0] / width, column[1] / width, 0, column0 / width,
                                           -row[0] / height, -row[1] / height, 0, 1 - row0 / height, 0, 0, 0,
                                           1});
}

const Looks::Target* Looks::targetOf(const citygml::GeometryPiece& piece) const
{
    if (kinds.size() == 1) {
        return nullptr;
    }
    for (auto object = piece.objects.rbegin(); object != piece.objects.rend(); ++object) {
        const Target* const found = textureTargets.find(*object);
        if (found != nullptr &&
            (found->matrix != nullptr || ringPlaces.find(piece.runs.front().object) != nullptr)) {
            return found;
        }
    }
    for (auto object = piece.objects.rbegin(); object != piece.objects.rend(); ++object) {
        if (const Target* const found = materialTargets.find(*object)) {
            return found;
        }
    }
    return nullptr;
}

std::uint32_t Looks::lookOf(const citygml::GeometryPiece& piece)
{
    if (piece.runs.empty() || !isThemeShown) {
        return noLook;
    }
    if (const Target* const target = targetOf(piece)) {
        return target->look;
    }
    const tex::AbstractAppearanceType* const appearance = appearanceOn(piece);
    return appearance != nullptr ? lookOfTextured(*appearance) : noLook;
}

/// Appends the places that a textured surface tells of its outer ring.
void Looks::appendOwnPlaces(const citygml::GeometryPiece& piece, std::vector<std::array<float, 2>>& places)
{
    const auto* const texture = dynamic_cast<const tex::SimpleTextureType*>(appearanceOn(piece));
    if (texture == nullptr) {
        return;
    }
    const auto& numbers = texture->textureCoordinates();
    const std::size_t count = numbers.size() / 2;
    for (std::size_t i = 0; i < piece.positions.size() && count > 0; ++i) {
        // The last position of a closed ring, which is the first one, may have none of its own.
        const std::size_t at = i < count ? i : 0;
        places.push_back({static_cast<float>(numbers[2 * at]), static_cast<float>(numbers[2 * at + 1])});
    }
}

void Looks::appendPlaces(const citygml::GeometryPiece& piece, std::uint32_t look,
                         std::vector<std::array<float, 2>>& places) const
{
    const Target* const target = targetOf(piece);
    if (target == nullptr) {
        return appendOwnPlaces(piece, places);
    }
    if (target->look != look) {
        return;
    }
    for (const citygml::PositionRun& run : piece.runs) {
        const std::vector<float>* const* const found = ringPlaces.find(run.object);
        for (std::size_t i = run.begin; i < run.end; ++i) {
            std::array<float, 2> place = {0, 0};
            const std::size_t at = 2 * (i - run.begin);
            if (target->matrix != nullptr) {
                const auto& [x, y, z] = piece.positions[i];
                const Matrix& m = *target->matrix;
                const double scale = m[8] * x + m[9] * y + m[10] * z + m[11];
                place = {static_cast<float>((m[0] * x + m[1] * y + m[2] * z + m[3]) / scale),
                         static_cast<float>((m[4] * x + m[5] * y + m[6] * z + m[7]) / scale)};
            } else if (found != nullptr && at + 1 < (*found)->size()) {
                place = {(**found)[at], (**found)[at + 1]};
            }
            places.push_back(place);
        }
    }
}

/// Has surfaces painted with a picture.
void Looks::setTexture(osg::StateSet& state, const Texture& texture)
{
    osg::ref_ptr<osg::Texture2D> picture = new osg::Texture2D(texture.picture->image());
    const auto wrap = texture.wrapMode == "mirror"   ? osg::Texture::MIRROR
                      : texture.wrapMode == "clamp"  ? osg::Texture::CLAMP_TO_EDGE
                      : texture.wrapMode == "border" ? osg::Texture::CLAMP_TO_BORDER
                      : texture.wrapMode == "none"   ? osg::Texture::CLAMP_TO_EDGE
                                                     : osg::Texture::REPEAT;
    picture->setWrap(osg::Texture::WRAP_S, wrap);
    picture->setWrap(osg::Texture::WRAP_T, wrap);
    picture->setBorderColor(
        osg::Vec4d(texture.border[0], texture.border[1], texture.border[2], texture.border[3]));
    picture->setResizeNonPowerOfTwoHint(false);
    state.setTextureAttribute(pictureUnit, picture);
    state.addUniform(new osg::Uniform("look", int(TextureLook)));
    // Nothing is painted beside such a picture.
    state.addUniform(new osg::Uniform("isBounded", texture.wrapMode == "none"));
}

osg::ref_ptr<osg::StateSet> Looks::stateOf(std::uint32_t look)
{
    osg::ref_ptr<osg::StateSet>& state = states[look];
    if (state != nullptr) {
        return state;
    }
    state = new osg::StateSet;
    if (kinds[look].kind == LookKind::Material) {
        state->addUniform(new osg::Uniform("look", int(MaterialLook)));
        if (kinds[look].colour[3] < 255) {
            state->setAttributeAndModes(makeBlending());
            state->setRenderingHint(osg::StateSet::TRANSPARENT_BIN);
        }
    } else if (kinds[look].kind == LookKind::Texture && textures[look].picture->image() != nullptr) {
        setTexture(*state, textures[look]);
    } else {
        // Its file began like a picture.
        noteMissing(textures[look].uri);
        state->addUniform(new osg::Uniform("look", int(FeatureLook)));
    }
    return state;
}

} // namespace tolvik::scene
