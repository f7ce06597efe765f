#include "assets/Particle.h"

#include <cmath>

#include "assets/Gl.h"
#include "assets/ParticleEmitter.h"
#include "assets/RandomFloat.h"

namespace tolvane {

namespace {

// From -1 to 1.
float RandomSign() {
    return RandomUpTo(2.0f) - 1.0f;
}

// The point displaced within a box of the half sizes about it, one random number an axis.
Vertex Scattered(const Vertex& point, const Vertex& spread) {
    Vertex result = point;
    result.x += RandomSign() * spread.x;
    result.y += RandomSign() * spread.y;
    result.z += RandomSign() * spread.z;
    return result;
}

// One random number for all three parts.
Vertex RandomBetween(const Vertex& min, const Vertex& max) {
    return Add(min, Scale(Subtract(max, min), RandomUnit()));
}

void Advance(Vertex& value, const Vertex& rate, float dt) {
    value = Add(value, Scale(rate, dt));
}

}  // namespace

void Particle::Spawn(ParticleEmitter& source) {
    emitter = &source;
    lifetime = RandomRange(source.lifetimeMin, source.lifetimeMax);
    if (lifetime == 0.0f)
        return;

    age = 0.0f;
    position = Scattered(source.spawnAtPosition ? source.position : Vertex{}, source.positionSpread);
    velocity = Scattered(source.direction, source.directionSpread);
    velocity = Scale(velocity, RandomUpTo(source.speedMin + source.speedMax));
    acceleration =
        Scale(source.accelerationDirection, RandomRange(source.accelerationMin, source.accelerationMax));
    color = RandomBetween(source.colorStartMin, source.colorStartMax);
    colorDelta = Divide(Subtract(RandomBetween(source.colorEndMin, source.colorEndMax), color), lifetime);
    alpha = RandomRange(source.alphaStartMin, source.alphaStartMax);
    alphaDelta = (RandomRange(source.alphaEndMin, source.alphaEndMax) - alpha) / lifetime;
    size = RandomRange(source.sizeStartMin, source.sizeStartMax);
    sizeDelta = (RandomRange(source.sizeEndMin, source.sizeEndMax) - size) / lifetime;
    angle = 0.0f;
    spin = RandomRange(source.spinMin, source.spinMax);
    spinAcceleration = RandomRange(source.spinAccelerationMin, source.spinAccelerationMax);
    alive = true;
}

void Particle::Update(float dt, const Vertex& eyePosition, int index) {
    age += dt;
    if (age > lifetime) {
        if (emitter->respawn && lifetime > 0.0f) {
            Spawn(*emitter);
            Update(RandomUnit() * dt, eyePosition, index);
            return;
        }
        age = 0.0f;
        alive = false;
        emitter->deadIndices.push_back(index);
        return;
    }
    size += sizeDelta * dt;
    alpha += alphaDelta * dt;
    Advance(color, colorDelta, dt);
    Advance(velocity, acceleration, dt);
    Advance(position, velocity, dt);
    spin += spinAcceleration * dt;
    angle += spin * dt;
    distance = Length(Subtract(position, eyePosition));
}

void Particle::Draw() const {
    if (emitter->useQuads)
        DrawQuad();
    else
        DrawPoint();
}

void Particle::DrawPoint() const {
    glPointSize(size * emitter->pointSize);
    glColor4f(color.x, color.y, color.z, alpha);
    glBegin(GL_POINTS);
    glVertex3fv(&position.x);
    glEnd();
}

// Each texture coordinate is set behind the vertex before its own: the last serves the next particle's first
// corner. The quad stands half a size above the one about the position.
void Particle::DrawQuad() const {
    Vertex right = emitter->billboardRight;
    Vertex up = emitter->billboardUp;
    if (angle > 0.0f) {
        const float sine = std::sin(angle);
        const float cosine = std::cos(angle);
        const Vertex turnedRight = Add(Scale(up, sine), Scale(right, cosine));
        up = Subtract(Scale(up, cosine), Scale(right, sine));
        right = turnedRight;
    }

    Vertex corner = Subtract(position, Scale(Subtract(right, up), size / 2.0f));
    glColor4f(color.x, color.y, color.z, alpha);
    glBegin(GL_POLYGON);
    glVertex3fv(&corner.x);
    glTexCoord2f(0.0f, 1.0f);
    corner = Add(corner, Scale(up, size));
    glVertex3fv(&corner.x);
    glTexCoord2f(1.0f, 1.0f);
    corner = Add(corner, Scale(right, size));
    glVertex3fv(&corner.x);
    glTexCoord2f(1.0f, 0.0f);
    corner = Subtract(corner, Scale(up, size));
    glVertex3fv(&corner.x);
    glTexCoord2f(0.0f, 0.0f);
    glEnd();
}

}  // namespace tolvane
