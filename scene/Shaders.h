#pragma once

#include <osg/Program>
#include <osg/ref_ptr>

namespace tolvik::scene {

/// Texture units: of the picture of a surface, and of the tables with the state and the colour of each
/// feature.
enum TextureUnit : int { pictureUnit = 0, stateUnit = 1, colourUnit = 2 };

/// Of these tables: the number of features in a row.
constexpr int tableWidth = 2048;

/// Values of the uniform `look`: where a fragment's colour comes from. Faces have that of their feature, of
/// their material or of their texture; edges a dark one, lines and points that of their feature without
/// shade.
enum LookMode : int { FeatureLook = 0, MaterialLook = 1, TextureLook = 2, EdgeLook = 3, MarkLook = 4 };

/// Draws features as people see them. Uniforms, besides those of FeatureTable::bind(): `look`, `isByFeature`
/// (whether materials and textures are left out), `selection` (the colour of what is selected), and `section`
/// (a plane in eye coordinates; what is behind it is cut off).
osg::ref_ptr<osg::Program> makeViewProgram();

/// Draws for each pixel the number of the feature that is seen there, plus 1, as red, green, blue and opacity
/// from the lowest byte on.
osg::ref_ptr<osg::Program> makeIdentifierProgram();

} // namespace tolvik::scene
