#pragma once

#include <string>

#include "assets/ParticleEmitter.h"

namespace tolvane {

class TextureHandler;
struct ParticlePreset;

// An emitter with its texture loader and setters; the presets derive from it. Copying one into a plain
// ParticleEffect keeps all that a preset has set.
class ParticleEffect : public ParticleEmitter {
public:
    // The handler is not owned; without one the particles have no picture.
    explicit ParticleEffect(TextureHandler* handler) : textureHandler(handler) {}

    void SetPosition(const Vertex& point, const Vertex& spread);
    void SetDirection(const Vertex& velocity, const Vertex& spread);
    void SetSpeed(float min, float max);
    void SetRotationSpeed(float min, float max);
    void SetRotationAcceleration(float min, float max);
    void SetAcceleration(const Vertex& towards, float min, float max);
    void SetStartColor(const Vertex& min, const Vertex& max);
    void SetEndColor(const Vertex& min, const Vertex& max);
    void SetAlpha(float startMin, float startMax, float endMin, float endMax);
    void SetSize(float startMin, float startMax, float endMin, float endMax);
    void SetLifetime(float min, float max);
    // Hundreds of particles a second, truncated to a whole number.
    void SetEmissionRate(float rate);

    // The GL texture of a TGA picture, for Setup.
    unsigned int LoadTexture(const std::string& path);

protected:
    // Loads the picture, takes the particles and sets everything that the preset has a value for.
    void ApplyPreset(const ParticlePreset& preset);

private:
    TextureHandler* textureHandler;
};

}  // namespace tolvane
