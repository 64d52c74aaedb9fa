#include "scene/PartStates.h"

#include "scene/Shaders.h"

#include <osg/LineWidth>
#include <osg/Point>

namespace tolvik::scene {

namespace {

void setLook(osg::StateSet& state, LookMode look)
{
    state.addUniform(new osg::Uniform("look", int(look)));
}

/// The states of faces without a look, of edges, and of lines and points.
osg::ref_ptr<osg::StateSet> makePartState(TileDrawable::Part part)
{
    osg::ref_ptr<osg::StateSet> state = new osg::StateSet;
    setLook(*state, part == TileDrawable::Part::Faces   ? FeatureLook
                    : part == TileDrawable::Part::Edges ? EdgeLook
                                                        : MarkLook);
    if (part == TileDrawable::Part::Edges) {
        // Faint ones are mixed with the faces, which are drawn before them.
        state->setRenderBinDetails(1, "RenderBin");
        state->setAttributeAndModes(makeBlending());
    }
    if (part == TileDrawable::Part::Marks) {
        state->setAttribute(new osg::LineWidth(2));
        state->setAttribute(new osg::Point(7));
    }
    return state;
}

} // namespace

PartStates makePartStates()
{
    return {makePartState(TileDrawable::Part::Faces), makePartState(TileDrawable::Part::Edges),
            makePartState(TileDrawable::Part::Marks)};
}

unsigned maskOf(TileDrawable::Part part)
{
    switch (part) {
    case TileDrawable::Part::Faces:
        return FaceMask;
    case TileDrawable::Part::Edges:
        return EdgeMask;
    default:
        return MarkMask;
    }
}

} // namespace tolvik::scene
