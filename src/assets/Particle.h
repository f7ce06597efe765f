#pragma once

#include "assets/Vertex.h"

namespace tolvane {

class ParticleEmitter;

// One spark: a plain value that its emitter copies between the free and the flying ones.
struct Particle {
    bool alive = false;
    float distance = 0.0f;  // from the eye, as of the latest step
    Vertex position;
    Vertex velocity;      // units a second
    Vertex acceleration;  // units a second, each second
    float spin = 0.0f;    // radians a second
    float angle = 0.0f;   // radians
    float spinAcceleration = 0.0f;
    Vertex color;  // red, green, blue
    Vertex colorDelta;
    float alpha = 0.0f;
    float alphaDelta = 0.0f;  // this and the other deltas are a second
    float size = 0.0f;
    float sizeDelta = 0.0f;
    float age = 0.0f;  // seconds
    float lifetime = 0.0f;
    ParticleEmitter* emitter = nullptr;  // not owned

    // Starts a new life by the emitter's settings. A lifetime that comes out as exactly 0 starts none.
    void Spawn(ParticleEmitter& source);
    // One step of dt seconds. A particle whose time is over lives again where the emitter lets it, or dies
    // and reports the index that it was called with to the emitter.
    void Update(float dt, const Vertex& eyePosition, int index);
    // Draws a point or a quad, by the emitter's settings.
    void Draw() const;

private:
    void DrawPoint() const;
    void DrawQuad() const;
};

}  // namespace tolvane
