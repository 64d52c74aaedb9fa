#include "scene/Shaders.h"

#include "scene/TileMesh.h"

#include <string>

namespace tolvik::scene {

namespace {

/// Both programs place a vertex alike, so that both cover the same pixels.
static_assert(tableWidth == 2048, "the shader cuts a slot into row and column");
static_assert(sizeSteps == 8 && smallestWithEdges == 3, "the shader calculates with them");
const char* const placeVertex = R"(#version 150 compatibility
uniform usampler2D stateOf;
uniform sampler2D colourOf;
uniform int look;
uniform vec4 section;
uniform float pictureHeight;
// From the part of the picture that is projected to the whole: a factor, and where its middle lies.
uniform vec4 widening;
in uint feature;
in vec4 normal;
flat out float opacity;

uint slotOf() { return feature >> 3u; }
ivec2 placeInTable() { return ivec2(slotOf() & 2047u, slotOf() >> 11u); }
vec4 colourOfFeature() { return texelFetch(colourOf, placeInTable(), 0); }
uint stateOfFeature() { return texelFetch(stateOf, placeInTable(), 0).r; }

/// Of the edges of a surface: none where it is small in the picture.
float opacityOfEdges(vec4 eye)
{
    float extent = exp2(normal.w * 127.0 / 8.0);
    float perspective = gl_ProjectionMatrix[3][3] == 1.0 ? 1.0 : max(-eye.z, 1e-6);
    float pixels = extent * gl_ProjectionMatrix[1][1] * widening.y * pictureHeight / 2.0 / perspective;
    return smoothstep(3.0, 12.0, pixels);
}

void placeVertex(uint state)
{
    uint lod = feature & 7u;
    bool isShown = (state & 1u) == 0u && (lod == 0u || lod == state >> 2u);
    vec4 eye = gl_ModelViewMatrix * gl_Vertex;
    opacity = look == 3 ? opacityOfEdges(eye) : 1.0;
    gl_ClipDistance[0] = dot(eye, section);
    // All vertices of what is not shown come to lie at one place out of sight.
    gl_Position = isShown ? gl_ProjectionMatrix * eye : vec4(2.0, 2.0, 2.0, 1.0);
    gl_Position.xy = gl_Position.xy * widening.xy + gl_Position.w * widening.zw;
    // Of surfaces upon each other, that of a selected feature is seen, or else that of the innermost one.
    // Features that are equally far inside differ a little, so that they do not flicker.
    float level = colourOfFeature().a * 255.0 + ((state & 2u) != 0u ? 4.0 : 0.0) +
                  float(slotOf() & 15u) / 20.0;
    gl_Position.z -= level * 1e-5 * gl_Position.w;
}
)";

const char* const viewVertex = R"(
uniform bool isByFeature;
in vec2 place;
in vec4 materialColour;
out vec2 placeInPicture;
flat out vec4 colour;
flat out uint stateOfFragment;

float lightOn(vec3 normal, vec3 eye)
{
    vec3 toViewer = gl_ProjectionMatrix[3][3] == 1.0 ? vec3(0.0, 0.0, 1.0) : -eye;
    vec3 turned = dot(normal, toViewer) < 0.0 ? -normal : normal;
    vec3 sun = normalize(gl_NormalMatrix * vec3(-0.45, -0.62, 0.75));
    // Alike in all of a face, which would fall apart into its triangles otherwise.
    return 0.52 + 0.33 * max(dot(turned, sun), 0.0) + 0.15 * max(turned.z, 0.0);
}

void main()
{
    uint state = stateOfFeature();
    placeVertex(state);
    stateOfFragment = state;
    placeInPicture = place;
    colour = look == 1 && !isByFeature ? materialColour : vec4(colourOfFeature().rgb, 1.0);
    if (look <= 2) {
        colour.rgb *= lightOn(normalize(gl_NormalMatrix * normal.xyz), vec3(gl_ModelViewMatrix * gl_Vertex));
    } else if (look == 3) {
        colour = vec4(colour.rgb * 0.35, opacity);
    }
}
)";

/// Which fragments are left out, and which have a part of a picture.
const char* const findPicture = R"(#version 150 compatibility
flat in float opacity;
uniform int look;
uniform bool isBounded;
uniform sampler2D picture;
in vec2 placeInPicture;

bool isInPicture()
{
    bool isOutside = any(lessThan(placeInPicture, vec2(0.0))) || any(greaterThan(placeInPicture, vec2(1.0)));
    return look == 2 && !(isBounded && isOutside);
}

bool isLeftOut()
{
    // One can look through the clear parts of a texture.
    return opacity == 0.0 || (isInPicture() && texture(picture, placeInPicture).a < 0.5);
}
)";

const char* const viewFragment = R"(
uniform bool isByFeature;
uniform vec4 selection;
flat in vec4 colour;
flat in uint stateOfFragment;

void main()
{
    if (isLeftOut()) {
        discard;
    }
    vec4 shown = colour;
    if (isInPicture() && !isByFeature) {
        shown.rgb = texture(picture, placeInPicture).rgb;
    }
    gl_FragColor = (stateOfFragment & 2u) != 0u ? selection : shown;
}
)";

const char* const identifierVertex = R"(
in vec2 place;
out vec2 placeInPicture;
flat out uint identifier;

void main()
{
    placeVertex(stateOfFeature());
    placeInPicture = place;
    identifier = slotOf() + 1u;
}
)";

const char* const identifierFragment = R"(
flat in uint identifier;

void main()
{
    if (isLeftOut()) {
        discard;
    }
    gl_FragColor = vec4(identifier & 255u, identifier >> 8u & 255u, identifier >> 16u & 255u,
                        identifier >> 24u & 255u) / 255.0;
}
)";

osg::ref_ptr<osg::Program> makeProgram(const char* vertex, const char* fragment)
{
    osg::ref_ptr<osg::Program> program = new osg::Program;
    program->addShader(new osg::Shader(osg::Shader::VERTEX, std::string(placeVertex) + vertex));
    program->addShader(new osg::Shader(osg::Shader::FRAGMENT, std::string(findPicture) + fragment));
    program->addBindAttribLocation("place", PlaceAttribute);
    program->addBindAttribLocation("normal", NormalAttribute);
    program->addBindAttribLocation("feature", FeatureAttribute);
    program->addBindAttribLocation("materialColour", ColourAttribute);
    return program;
}

} // namespace

osg::ref_ptr<osg::BlendFunc> makeBlending()
{
    return new osg::BlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA, GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
}

osg::ref_ptr<osg::Program> makeViewProgram()
{
    return makeProgram(viewVertex, viewFragment);
}

osg::ref_ptr<osg::Program> makeIdentifierProgram()
{
    return makeProgram(identifierVertex, identifierFragment);
}

} // namespace tolvik::scene
