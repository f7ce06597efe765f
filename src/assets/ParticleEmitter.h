#pragma once

#include <vector>

#include "assets/Particle.h"
#include "assets/Vertex.h"

namespace tolvane {

// A fixed number of particles that are emitted, fly, fade and come back to be emitted again. It is moved
// in world units, and drawn in whatever frame its owner has set up; the owner decides when. An emitter is
// a value: a copy goes on by itself.
class ParticleEmitter {
public:
    // Takes count particles, none of them flying, and the GL texture that they show.
    void Setup(int count, unsigned int texture);
    // Back to the start: whatever flew is gone at once.
    void Restart();
    // Moves all particles on by dt seconds, emits new ones, and sorts them far to near as seen from the eye.
    void UpdateParticles(float dt, const Vertex* eyePosition);
    // Draws them in the order of the latest update: additive where blending is set, without light or depth
    // writing. Lighting is on and blending off afterwards.
    void DrawParticles(bool blending);

    // The particles that fly, far to near as of the latest update.
    const std::vector<Particle>& GetActive() const { return active; }
    const std::vector<Particle>& GetPool() const { return pool; }

    // Where particles start: a point, and the half sizes of a box about it.
    Vertex position;
    Vertex positionSpread;
    // Start velocity and its half sizes, before the random factor from 0 to speedMin plus speedMax.
    Vertex direction;
    Vertex directionSpread;
    float speedMin = 0.0f;
    float speedMax = 0.0f;
    float spinMin = 0.0f;  // radians a second
    float spinMax = 0.0f;
    float spinAccelerationMin = 0.0f;
    float spinAccelerationMax = 0.0f;
    Vertex accelerationDirection;
    float accelerationMin = 0.0f;  // factor on the direction
    float accelerationMax = 0.0f;
    float alphaStartMin = 0.0f;
    float alphaStartMax = 0.0f;
    float alphaEndMin = 1.0f;
    float alphaEndMax = 1.0f;
    float sizeStartMin = 0.0f;
    float sizeStartMax = 0.0f;
    float sizeEndMin = 0.0f;
    float sizeEndMax = 0.0f;
    Vertex colorStartMin;
    Vertex colorStartMax;
    Vertex colorEndMin;
    Vertex colorEndMax;
    float lifetimeMin = 1.0f;  // seconds
    float lifetimeMax = 1.0f;
    bool respawn = false;   // a dead particle starts anew at once
    int billboardMode = 0;  // 0 flat in x and y, 1 faces the camera, 2 turns about the vertical only
    unsigned int textureId = 0;
    bool useQuads = false;         // textured quads instead of GL points
    bool spawnAtPosition = false;  // else about the origin

private:
    friend struct Particle;

    int Quota(float dt) const;
    void StepActive(float dt, const Vertex& eyePosition);
    void ReturnDead();
    void Emit(int quota, float dt, const Vertex& eyePosition);
    void SetBillboard();

    std::vector<Particle> pool;    // free
    std::vector<Particle> active;  // flying
    std::vector<int> deadIndices;  // scratch of the update
    int particleCount = 0;

public:
    int emissionRate = 0;           // a hundredth of the particles a second
    float emissionVariance = 0.0f;  // width of the random factor about 1 on the emission

private:
    float pointSize = 0.0f;
    Vertex billboardRight;
    Vertex billboardUp;
};

}  // namespace tolvane
