#include "scene/Props.h"

#include "assets/MD2_Reader.h"
#include "support/GlWindow.h"
#include "support/Md2File.h"
#include "support/TemporaryFile.h"

namespace tolvane::test {

SquareProp::SquareProp(float edge, unsigned int texture) {
    constexpr float modelEdge = 10.0f;
    const TemporaryFile file(SquareModel({"frame0", "frame1"}).Bytes(), ".md2");
    PrintedBy([&] {
        model = MD2_Reader().Load(file.Path());
        instance = std::make_unique<MD2_Instance>(model.get(), texture, 0, edge / modelEdge);
    });
}

ParticleEffect OneFlame(unsigned int texture) {
    ParticleEffect flame(nullptr);
    flame.Setup(1, texture);
    flame.SetEmissionRate(100.0f);
    flame.SetLifetime(1000.0f, 1000.0f);
    flame.SetStartColor({1.0f, 0.0f, 0.0f}, {1.0f, 0.0f, 0.0f});
    flame.SetEndColor({1.0f, 0.0f, 0.0f}, {1.0f, 0.0f, 0.0f});
    flame.SetAlpha(1.0f, 1.0f, 1.0f, 1.0f);
    flame.SetSize(2.0f, 2.0f, 2.0f, 2.0f);
    flame.useQuads = true;
    flame.billboardMode = 1;
    return flame;
}

LightPosShader::LightPosShader() {
    const TemporaryFile vertex("void main() { gl_Position = ftransform(); }", ".vert");
    const TemporaryFile fragment(
        "uniform vec4 LightPos; void main() { gl_FragColor = vec4(LightPos.xyz / 100.0, 1.0); }", ".frag");
    PrintedBy([&] { shader = std::make_unique<Shader>(vertex.Path(), fragment.Path()); });
}

}  // namespace tolvane::test
