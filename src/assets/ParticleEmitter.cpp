#include "assets/ParticleEmitter.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "assets/Gl.h"
#include "assets/RandomFloat.h"

namespace tolvane {

void ParticleEmitter::Setup(int count, unsigned int texture) {
    textureId = texture;
    particleCount = std::max(count, 0);
    const auto size = static_cast<std::size_t>(particleCount);
    pool.assign(size, Particle{});
    active.clear();
    active.reserve(size);
    deadIndices.reserve(size * 2);
}

void ParticleEmitter::Restart() {
    Setup(particleCount, textureId);
}

void ParticleEmitter::UpdateParticles(float dt, const Vertex* eyePosition) {
    const int quota = Quota(dt);
    StepActive(dt, *eyePosition);
    ReturnDead();
    Emit(quota, dt, *eyePosition);
    std::sort(active.begin(), active.end(),
              [](const Particle& a, const Particle& b) { return a.distance > b.distance; });
}

// How many particles this step may emit; more than there are in all is as good as all.
int ParticleEmitter::Quota(float dt) const {
    const float wanted = static_cast<float>(emissionRate) * dt * 100.0f *
                         (1.0f + (RandomUpTo(1.0f) - 0.5f) * emissionVariance);
    return static_cast<int>(std::clamp(wanted, 0.0f, static_cast<float>(particleCount)));
}

void ParticleEmitter::StepActive(float dt, const Vertex& eyePosition) {
    deadIndices.clear();
    for (std::size_t i = 0; i < active.size(); ++i) {
        active[i].emitter = this;  // a copied emitter goes on with particles of its own
        active[i].Update(dt, eyePosition, static_cast<int>(i));
    }
}

// The dead go to the back of the pool, the last first.
void ParticleEmitter::ReturnDead() {
    for (auto index = deadIndices.rbegin(); index != deadIndices.rend(); ++index) {
        const auto dead = active.begin() + *index;
        pool.push_back(*dead);
        active.erase(dead);
    }
    deadIndices.clear();
}

// The new ones leave the front of the pool, each with a part of the step behind it, so that a burst is spread
// over the frame. One whose life is shorter than that part begins it anew.
void ParticleEmitter::Emit(int quota, float dt, const Vertex& eyePosition) {
    const int count = std::min(quota, static_cast<int>(pool.size()));
    for (int i = 0; i < count; ++i) {
        Particle& particle = pool[static_cast<std::size_t>(i)];
        particle.Spawn(*this);
        particle.Update(RandomUpTo(1.0f) * dt, eyePosition, i);
        active.push_back(particle);
    }
    pool.erase(pool.begin(), pool.begin() + count);
    deadIndices.clear();
}

void ParticleEmitter::DrawParticles(bool blending) {
    glDisable(GL_LIGHTING);
    if (blending) {
        glEnable(GL_BLEND);
        glBlendFunc(GL_SRC_ALPHA, GL_ONE);
    }
    glDepthMask(GL_FALSE);
    if (useQuads) {
        glBindTexture(GL_TEXTURE_2D, textureId);
        SetBillboard();
    } else {
        glGetFloatv(GL_POINT_SIZE, &pointSize);
    }

    for (const Particle& particle : active)
        particle.Draw();

    glDepthMask(GL_TRUE);
    glDisable(GL_BLEND);
    glEnable(GL_LIGHTING);
}

// The axes of the quads: those of the eye, as the first two rows of the modelview matrix tell them.
void ParticleEmitter::SetBillboard() {
    std::array<float, 16> m{};
    glGetFloatv(GL_MODELVIEW_MATRIX, m.data());
    const bool turns = billboardMode == 1 || billboardMode == 2;
    billboardRight = turns ? Vertex{m[0], m[4], m[8]} : Vertex{1.0f, 0.0f, 0.0f};
    billboardUp = billboardMode == 1 ? Vertex{m[1], m[5], m[9]} : Vertex{0.0f, 1.0f, 0.0f};
}

}  // namespace tolvane
