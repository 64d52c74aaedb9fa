#pragma once

#include <osg/BlendFunc>
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

/// Edges of surfaces are drawn whose extent is so many pixels at least; up to a larger one they are faint.
/// Without that a city that is far away would be nothing but edges.
constexpr double smallestWithEdges = 3;

/// Lets what is drawn be seen through as its opacity says. The picture's own opacity stays.
osg::ref_ptr<osg::BlendFunc> makeBlending();

/// Draws features as people see them. Uniforms, besides those of FeatureTable::bind(): `look`, `isByFeature`
/// (whether materials and textures are left out), `selection` (the colour of what is selected), `section`
/// (a plane in eye coordinates; what is behind it is cut off), and `pictureHeight` in pixels.
osg::ref_ptr<osg::Program> makeViewProgram();

/// Draws for each pixel the number of the feature that is seen there, plus 1, as red, green, blue and opacity
/// from the lowest byte on.
osg::ref_ptr<osg::Program> makeIdentifierProgram();

} // namespace tolvik::scene
