#include "figures/FigureValues.h"

#include <cstddef>

#include "assets/ParticleEffect.h"

namespace tolvane {

namespace {

using enum MD2_AnimationMode;

constexpr ClipValues standing{"stand", Loop, 1.0f};
constexpr ClipValues rookStanding{"stand", Loop, 0.3f};

constexpr MaterialValues glossy{.ambient = 0.7f, .diffuse = 0.9f, .specular = 1.0f, .shininess = 10.0f};

// The muzzle flame of the shooters.
constexpr EmitterValues pawnShots{
    .direction = {{0.0f, 0.0f, -1.0f}, {0.0f, 0.0f, -1.0f}},
    .lifetime = {0.35f, 0.4f},
    .speed = {2.0f, 2.4f},
    .size = {0.3f, 0.3f, 0.01f, 0.01f},
    .startColor = {{0.8f, 0.0f, 0.0f}, {0.8f, 0.1f, 0.1f}},
    .endColor = {{0.2f, 0.2f, 0.0f}, {0.8f, 0.8f, 0.0f}},
};

constexpr EmitterValues rookShots{
    .direction = {{0.0f, 0.0f, -1.0f}, {0.0f, 0.0f, -1.0f}},
    .lifetime = {0.35f, 0.5f},
    .speed = {1.9f, 2.3f},
    .size = {0.5f, 0.8f, 0.05f, 0.2f},
    .startColor = {{0.8f, 0.0f, 0.0f}, {0.85f, 0.1f, 0.1f}},
    .endColor = {{0.2f, 0.2f, 0.0f}, {0.85f, 0.8f, 0.0f}},
};

constexpr EmitterValues bishopShots{
    .direction = {{0.0f, 0.0f, -1.0f}, {0.0f, 0.0f, -1.0f}},
    .lifetime = {0.3f, 0.45f},
    .speed = {2.0f, 2.4f},
    .size = {0.05f, 0.1f, 0.01f, 0.01f},
    .startColor = {{0.3f, 0.0f, 0.0f}, {0.5f, 0.1f, 0.1f}},
    .endColor = {{0.2f, 0.2f, 0.0f}, {0.8f, 0.8f, 0.0f}},
};

// A white and blue stream, straight down.
constexpr EmitterValues knightShots{
    .direction = {{0.0f, -1.0f, 0.0f}, {0.0f, -1.0f, 0.0f}},
    .lifetime = {2.0f, 2.0f},
    .speed = {3.0f, 3.5f},
    .size = {0.5f, 0.5f, 0.03f, 0.03f},
    .startColor = {{0.9f, 0.9f, 0.9f}, {1.0f, 1.0f, 1.0f}},
    .endColor = {{0.7f, 0.7f, 0.9f}, {0.8f, 0.8f, 1.0f}},
    .emissionRate = 50.0f,
};

// The puffs of a hit, grey going pale.
constexpr EmitterValues Hits(Vertex at, Vertex directionSpread = {2.0f, 2.0f, 2.0f}) {
    return {
        .position = Spot{at, {0.2f, 0.2f, 0.2f}},
        .direction = {{0.0f, 0.0f, -1.0f}, directionSpread},
        .lifetime = {0.35f, 0.4f},
        .speed = {1.0f, 1.3f},
        .size = {0.3f, 0.35f, 0.01f, 0.05f},
        .startColor = {{0.4f, 0.1f, 0.1f}, {0.3f, 0.2f, 0.2f}},
        .endColor = {{0.6f, 0.6f, 0.6f}, {0.8f, 0.8f, 0.8f}},
        .emissionRate = 30.0f,
    };
}

constexpr EmitterValues HeavyHits(Vertex at) {
    return {
        .position = Spot{at, {0.5f, 0.2f, 0.5f}},
        .direction = {{0.0f, 0.0f, -1.0f}, {2.0f, 2.0f, 2.0f}},
        .lifetime = {0.5f, 0.5f},
        .speed = {0.5f, 0.8f},
        .size = {0.6f, 0.65f, 0.01f, 0.05f},
        .startColor = {{0.4f, 0.1f, 0.1f}, {0.3f, 0.2f, 0.2f}},
        .endColor = {{0.6f, 0.6f, 0.6f}, {0.8f, 0.8f, 0.8f}},
        .emissionRate = 50.0f,
    };
}

constexpr EmitterValues kingExplosion{
    .position = Spot{{0.0f, 1.7f, 0.6f}, {0.2f, 0.2f, 0.2f}},
    .direction = {{0.0f, 1.0f, 0.0f}, {2.0f, 2.0f, 2.0f}},
    .lifetime = {2.5f, 2.7f},
    .speed = {1.0f, 1.5f},
    .size = {1.5f, 2.0f, 0.3f, 0.3f},
    .startColor = {{0.8f, 0.0f, 0.0f}, {0.8f, 0.1f, 0.1f}},
    .endColor = {{0.2f, 0.2f, 0.0f}, {0.8f, 0.8f, 0.0f}},
    .acceleration = AccelerationValues{{0.0f, 0.0f, 0.0f}, -0.5f, -1.0f},
    .emissionRate = 100.0f,
};

constexpr FigureValues pawn{
    .walkSpeed = 2.5f,
    .stand = standing,
    .run = {{{"run", Loop, 1.0f}, standing}},
    .death = {{{"death", Once, 1.0f}, standing}},
    .material = glossy,
    .attackEmitter = pawnShots,
    .damageEmitter = Hits({0.0f, 1.0f, -0.02f}),
    .heavyDamageEmitter = HeavyHits({0.0f, 1.0f, -0.02f}),
    .attack = {.first = {{{0.34f, 1.45f, -0.2f}, {0.1f, 0.01f, 0.01f}}, "media/pawnshot2.wav"},
               .second = ShotValues{{{-0.25f, 1.45f, -0.2f}, {0.1f, 0.01f, 0.01f}}, "media/pawnshot2.wav"},
               .delay = 0.25f},
    .moveSound = {"media/pawnMove.wav", 0},
    .deathSounds = {"media/dying.wav"},
    .selectedSounds = {"media/pawnSelected0.wav", "media/pawnSelected1.wav"},
    .ackSounds = {"media/pawnAck0.wav", "media/pawnAck1.wav"},
};

constexpr FigureValues rook{
    .walkSpeed = 1.7f,
    .stand = rookStanding,
    .run = {{{"run", Loop, 1.0f}, rookStanding}},
    .death = {{{"death", Once, 1.0f}, rookStanding}},
    .material = {.ambient = 0.2f, .diffuse = 0.8f, .specular = 0.8f, .shininess = 20.0f},
    .attackEmitter = rookShots,
    .damageEmitter = Hits({0.0f, 1.0f, -0.75f}, {3.0f, 3.0f, 1.0f}),
    .heavyDamageEmitter = HeavyHits({0.0f, 1.0f, -0.75f}),
    .attack = {.first = {{{1.3f, 0.8f, -1.2f}, {0.3f, 0.3f, 0.01f}}, "media/rookshot3.wav"}, .delay = 0.25f},
    .moveSound = {"media/rookMove.wav", 5},
    .deathSounds = {"media/rookdeath.wav", "media/rookdeath1.wav"},
    .selectedSounds = {"media/rookSelected0.wav"},
    .ackSounds = {"media/rookAck0.wav", "media/rookAck1.wav"},
};

constexpr FigureValues knight{
    .walkSpeed = 1.0f,  // for turning alone
    .stand = standing,
    .run = {{{"run_start", Sequence, 5.0f}, {"run", Loop, 5.0f}, {"run_end", Sequence, 5.0f}, standing}},
    .death = {{{"death", Once, 1.0f}, standing}},
    .material = glossy,
    .attackEmitter = knightShots,
    .damageEmitter = Hits({0.0f, 1.0f, -0.02f}),
    .heavyDamageEmitter = HeavyHits({0.0f, 1.0f, -0.02f}),
    .attack = {.first = {{{0.0f, 1.0f, 0.0f}, {0.2f, 0.02f, 0.02f}}, "media/knightAttack.wav"},
               .second = ShotValues{{{-0.25f, 1.45f, -0.2f}, {0.1f, 0.01f, 0.01f}}},
               .delay = 0.5f},
    .moveSound = {"media/knightMoveShort.wav", 10},
    .deathSounds = {"media/explosionSmall.wav"},
    .otherSounds = {"media/knightStartEnd.wav"},
    .selectedSounds = {"media/knightSelected0.wav", "media/knightSelected1.wav"},
    .ackSounds = {"media/knightAck0.wav"},
};

constexpr FigureValues bishop{
    .walkSpeed = 2.8f,
    .stand = standing,
    .run = {{{"run", Loop, 1.0f}, standing}},
    .death = {{{"death", Once, 1.0f}, standing}},
    .material = glossy,
    .attackEmitter = bishopShots,
    .damageEmitter = Hits({0.0f, 1.75f, -0.1f}),
    .heavyDamageEmitter = HeavyHits({0.0f, 1.75f, -0.1f}),
    .attack = {.first = {{{0.53f, 1.98f, -0.65f}, {0.01f, 0.01f, 0.01f}}, "media/pawnshot.wav"},
               .second = ShotValues{{{-0.52f, 1.98f, -0.65f}, {0.01f, 0.01f, 0.01f}}, "media/pawnshot.wav"},
               .delay = 0.19f},
    .moveSound = {"media/bishopMove.wav", 5},
    .deathSounds = {"media/bishopDeath.wav"},
    .selectedSounds = {"media/bishopSelected0.wav", "media/bishopSelected1.wav"},
    .ackSounds = {"media/bishopAck0.wav"},
};

constexpr FigureValues queen{
    .walkSpeed = 2.0f,
    .stand = standing,
    .run = {{{"run_start", Sequence, 1.0f}, {"run", Loop, 1.0f}, {"run_end", Sequence, 1.0f}, standing}},
    .death = {{{"death", Once, 1.0f}, standing}},
    .material = {.ambient = 0.4f, .diffuse = 0.5f, .specular = 0.8f, .shininess = 20.0f},
    .attackEmitter = pawnShots,
    .damageEmitter = Hits({0.0f, 1.25f, -0.02f}),
    .heavyDamageEmitter = HeavyHits({0.0f, 1.25f, -0.02f}),
    .moveSound = {"media/queenMove.wav", 4},
    .deathSounds = {"media/explosionSmall.wav"},
    .otherSounds = {"media/queenTransformation.wav", "media/queenDropCan.wav", "media/queenUfo.wav",
                    "media/queenUfoBeam.wav", "media/queenUfoEngage.wav"},
    .selectedSounds = {"media/queenSelected0.wav", "media/queenSelected1.wav"},
    .ackSounds = {"media/queenAck0.wav", "media/queenAck1.wav", "media/queenAck2.wav"},
};

constexpr FigureValues king{
    .walkSpeed = 0.9f,
    .stand = standing,
    .run = {{{"run", Loop, 1.0f}, standing}},
    .death = {{{"death", Sequence, 1.0f}, {"deathII", Sequence, 1.0f}, {"deathIII", Once, 1.0f}}},
    .material = glossy,
    .damageEmitter = kingExplosion,
    .moveSound = {"media/kingMove.wav", 5},
    .otherSounds = {"media/kingAttack.wav", "media/kingSelfDestructStart.wav", "media/kingExplode.wav"},
    .selectedSounds = {"media/kingSelected0.wav"},
    .ackSounds = {"media/kingAck0.wav"},
};

constexpr std::array figureValues{pawn, rook, knight, bishop, queen, king};
static_assert(figureValues.size() == static_cast<std::size_t>(FigureType::King) + 1);

}  // namespace

const EmitterValues queenEngineValues{
    .position = Spot{{0.0f, 0.3f, 0.6f}, {0.2f, 0.2f, 0.2f}},
    .direction = {{0.0f, -1.0f, 0.5f}, {1.0f, 1.0f, 1.0f}},
    .lifetime = {0.35f, 0.4f},
    .speed = {1.0f, 1.3f},
    .size = {0.3f, 0.35f, 0.01f, 0.05f},
    .startColor = {{0.8f, 0.8f, 0.4f}, {0.9f, 0.9f, 0.5f}},
    .endColor = {{0.6f, 0.1f, 0.1f}, {0.7f, 0.2f, 0.2f}},
    .emissionRate = 10.0f,
};

const FigureValues& ValuesOf(FigureType type) {
    return figureValues[static_cast<std::size_t>(type)];
}

void Tune(ParticleEffect& emitter, const EmitterValues& tuning) {
    if (tuning.position)
        emitter.SetPosition(tuning.position->centre, tuning.position->spread);
    emitter.SetDirection(tuning.direction.centre, tuning.direction.spread);
    emitter.SetLifetime(tuning.lifetime.min, tuning.lifetime.max);
    emitter.SetSpeed(tuning.speed.min, tuning.speed.max);
    emitter.SetSize(tuning.size.startMin, tuning.size.startMax, tuning.size.endMin, tuning.size.endMax);
    emitter.SetStartColor(tuning.startColor.min, tuning.startColor.max);
    emitter.SetEndColor(tuning.endColor.min, tuning.endColor.max);
    if (tuning.acceleration)
        emitter.SetAcceleration(tuning.acceleration->direction, tuning.acceleration->min,
                                tuning.acceleration->max);
    emitter.SetAlpha(tuning.alpha.startMin, tuning.alpha.startMax, tuning.alpha.endMin, tuning.alpha.endMax);
    if (tuning.emissionRate)
        emitter.SetEmissionRate(*tuning.emissionRate);
}

}  // namespace tolvane
