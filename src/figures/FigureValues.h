#pragma once

#include <array>
#include <optional>

#include "assets/MD2_AnimationMode.h"
#include "assets/Vertex.h"
#include "rules/FigureType.h"

namespace tolvane {

class ParticleEffect;

// What makes one kind of figure differ from the others, as data: one row a kind. Times are seconds, distances
// world units, colours and alphas 0 to 1.

struct ClipValues {
    const char* name = nullptr;
    MD2_AnimationMode mode = MD2_AnimationMode::Loop;
    float speed = 1.0f;
};

// Clips that play one after the other; the unused places at the end have no name.
using ClipList = std::array<ClipValues, 4>;

// Paths of sounds; the unused places at the end are null.
using SoundPaths = std::array<const char*, 5>;

struct MaterialValues {
    float ambient;  // greys
    float diffuse;
    float specular;
    float shininess;
};

struct Range {
    float min;
    float max;
};

struct VertexRange {
    Vertex min;
    Vertex max;
};

// A point or direction and the half sizes of the box round it.
struct Spot {
    Vertex centre;
    Vertex spread;
};

struct StartAndEnd {
    float startMin;
    float startMax;
    float endMin;
    float endMax;
};

struct AccelerationValues {
    Vertex direction;
    float min;
    float max;
};

// How an emitter is tuned after its preset. What is left out stays the preset's.
struct EmitterValues {
    std::optional<Spot> position = std::nullopt;
    Spot direction;
    Range lifetime;
    Range speed;
    StartAndEnd size;
    VertexRange startColor;
    VertexRange endColor;
    std::optional<AccelerationValues> acceleration = std::nullopt;
    StartAndEnd alpha{1.0f, 1.0f, 0.1f, 0.1f};
    std::optional<float> emissionRate = std::nullopt;
};

// One shot: where its flame stands and what it sounds like, null for silence.
struct ShotValues {
    Spot mouth;
    const char* sound = nullptr;
};

struct AttackValues {
    ShotValues first;
    std::optional<ShotValues> second = std::nullopt;
    float delay = 0.0f;  // from one shot to the next, and from the last to the end
};

struct MoveSoundValues {
    const char* path;
    int loops;
};

struct FigureValues {
    float walkSpeed;
    ClipValues stand;
    ClipList run;
    ClipList death;
    MaterialValues material;
    std::optional<EmitterValues> attackEmitter = std::nullopt;
    EmitterValues damageEmitter;
    std::optional<EmitterValues> heavyDamageEmitter = std::nullopt;
    AttackValues attack = {};
    MoveSoundValues moveSound;
    SoundPaths deathSounds = {};  // played at once
    SoundPaths otherSounds = {};
    SoundPaths selectedSounds;
    SoundPaths ackSounds;
};

// The row of a kind.
const FigureValues& ValuesOf(FigureType type);

// The tuning of the queen's jet, which she has beside what her row gives her.
extern const EmitterValues queenEngineValues;

// Sets everything on the emitter that the values name.
void Tune(ParticleEffect& emitter, const EmitterValues& tuning);

}  // namespace tolvane
