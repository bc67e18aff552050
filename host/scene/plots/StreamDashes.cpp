#include "host/scene/plots/StreamDashes.h"

#include "host/scene/geometry/StreamTraces.h"

#include <vtkDataObject.h>
#include <vtkShaderProperty.h>
#include <vtkUniforms.h>

#include <cmath>

namespace corvane::scene {

namespace {

constexpr const char* attributeName = "integrationTime";
constexpr const char* anchorName = "dashAnchor";
constexpr const char* frequencyName = "dashFrequency";

void setUniforms(vtkActor& actor, double anchor, double frequency) {
    vtkUniforms& uniforms = *actor.GetShaderProperty()->GetFragmentCustomUniforms();
    uniforms.SetUniformf(anchorName, static_cast<float>(anchor));
    uniforms.SetUniformf(frequencyName, static_cast<float>(frequency));
}

} // namespace

void prepareDashes(vtkActor& actor, vtkPolyDataMapper& mapper) {
    mapper.MapDataArrayToVertexAttribute(attributeName, integrationTimeName,
                                         vtkDataObject::FIELD_ASSOCIATION_POINTS, -1);
    // Wide lines go through a geometry shader, for which VTK renames "VSOutput" in the fragment
    // shader.
    vtkShaderProperty& shaders = *actor.GetShaderProperty();
    shaders.AddVertexShaderReplacement("//VTK::PositionVC::Dec", true,
                                       "//VTK::PositionVC::Dec\n"
                                       "in float integrationTime;\n"
                                       "out float integrationTimeVSOutput;\n",
                                       false);
    shaders.AddVertexShaderReplacement("//VTK::PositionVC::Impl", true,
                                       "//VTK::PositionVC::Impl\n"
                                       "  integrationTimeVSOutput = integrationTime;\n",
                                       false);
    shaders.AddGeometryShaderReplacement("//VTK::PositionVC::Dec", true,
                                         "//VTK::PositionVC::Dec\n"
                                         "in float integrationTimeVSOutput[];\n"
                                         "out float integrationTimeGSOutput;\n",
                                         false);
    shaders.AddGeometryShaderReplacement(
        "//VTK::PositionVC::Impl", true,
        "//VTK::PositionVC::Impl\n"
        "  integrationTimeGSOutput = integrationTimeVSOutput[i];\n",
        false);
    shaders.AddFragmentShaderReplacement("//VTK::PositionVC::Dec", true,
                                         "//VTK::PositionVC::Dec\n"
                                         "in float integrationTimeVSOutput;\n",
                                         false);
    shaders.AddFragmentShaderReplacement(
        "//VTK::PositionVC::Impl", true,
        "//VTK::PositionVC::Impl\n"
        "  if (fract((integrationTimeVSOutput - dashAnchor) * dashFrequency) >= 0.5) discard;\n",
        false);
    setNoDashes(actor);
}

void setDashes(vtkActor& actor, double anchor, double interval) {
    // Shaders work in single precision: the anchor grows without limit, its phase does not.
    setUniforms(actor, std::fmod(anchor, interval), 1.0 / interval);
}

void setNoDashes(vtkActor& actor) {
    setUniforms(actor, 0.0, 0.0);
}

} // namespace corvane::scene
