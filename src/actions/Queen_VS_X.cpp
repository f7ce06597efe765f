#include "actions/Queen_VS_X.h"

#include <array>
#include <cmath>

#include "actions/Facing.h"
#include "actions/Slices.h"
#include "actions/Storyboard.h"
#include "assets/MD2_Instance.h"
#include "assets/Numbers.h"
#include "assets/ParticleEffect3.h"
#include "figures/Queen3D.h"

namespace tolvane {

namespace {

// Seconds
constexpr float chargeTime = 1.2f;
constexpr float glowEnd = 2.5f;  // since the charge began
constexpr float beamTime = 1.5f;
constexpr float pullDelay = 2.5f;
constexpr float pauseTime = 2.5f;
constexpr float leavingTime = 3.5f;

// World units
constexpr float ufoStartDistance = 30.0f;
constexpr float ufoStartHeight = 20.0f;
constexpr float ufoArrivalWindow = 0.06f;
constexpr float ufoHoverHeight = 7.0f;
constexpr float ufoHoverWindow = 7.03f;
constexpr float canHoldHeight = 7.0f;

constexpr float dissolveRate = 0.75f;  // of a normal death
constexpr float alphaPerSecond = 0.5f;
constexpr float ufoFirstAlpha = 3.0f;     // the first frame's time over this
constexpr float ufoCruisingSpeed = 1.0f;  // the saucer slows down no further
constexpr float ufoBraking = 250.0f;
constexpr float ufoSinkRate = 0.5f;  // down for each unit it comes in
constexpr float ufoAcceleration = 25.0f;
constexpr float ufoClipSpeed = 5.0f;

// A beam between the floor and the saucer, about a place of the board.
struct BeamValues {
    float height;
    float spread;
    float direction;
    float directionSpread;
    float lifetimeMin;
    float lifetimeMax;
};

constexpr BeamValues risingBeam{-0.5f, 1.0f, 1.0f, 0.2f, 2.5f, 3.0f};
constexpr BeamValues tractorBeam{6.9f, 0.5f, -1.0f, -0.1f, 3.5f, 4.0f};

void StartBeam(Queen3D& queen, const Vertex& place, const BeamValues& beam) {
    queen.beamEmitter.Restart();
    queen.beamEmitter.SetPosition({place.x, beam.height, place.z}, {beam.spread, 0.0f, beam.spread});
    queen.beamEmitter.SetDirection({0.0f, beam.direction, 0.0f},
                                   {beam.directionSpread, 0.0f, beam.directionSpread});
    queen.beamEmitter.SetLifetime(beam.lifetimeMin, beam.lifetimeMax);
    queen.beamActive = true;
}

// One side or the other; the negative one comes up twice as often.
int RandomSide() {
    return RandomInRange(0, 2) > 1 ? 1 : -1;
}

}  // namespace

Queen_VS_X::Queen_VS_X(ChessFigure3D* attacking, ChessFigure3D* attacked, float sizeOfField)
    : InterAction(attacking, attacked, sizeOfField) {
    FaceVictim();
    Queen().ChooseCan();
}

Queen3D& Queen_VS_X::Queen() const {
    return *static_cast<Queen3D*>(attacker);
}

const Vertex& Queen_VS_X::VictimPlace() const {
    return *victim->GetPosition();
}

bool Queen_VS_X::Step(float frameTime, const Vertex* eyePosition) {
    static constexpr std::array storyboard{
        &Queen_VS_X::Turn,     &Queen_VS_X::Charge,  &Queen_VS_X::Glow,       &Queen_VS_X::Beam,
        &Queen_VS_X::Dissolve, &Queen_VS_X::DropCan, &Queen_VS_X::UfoAppears, &Queen_VS_X::UfoComesIn,
        &Queen_VS_X::UfoSinks, &Queen_VS_X::PickUp,  &Queen_VS_X::Pause,      &Queen_VS_X::UfoLeaves,
        &Queen_VS_X::Fly,      &Queen_VS_X::TurnBack};
    return PlayPhase(*this, storyboard, state, frameTime, eyePosition);
}

bool Queen_VS_X::Turn(float frameTime, const Vertex*) {
    if (!TurnFor(frameTime, *attacker))
        return false;
    attacker->SetAnimation(attacker->attackAnimations[0]);
    timer = 0.0f;
    return true;
}

bool Queen_VS_X::Charge(float frameTime, const Vertex*) {
    timer += frameTime;
    if (timer <= chargeTime)
        return false;
    Queen().StartTransformationSound();
    Queen().glowEmitter.Restart();
    Queen().glowActive = true;
    return true;
}

bool Queen_VS_X::Glow(float frameTime, const Vertex*) {
    timer += frameTime;
    if (timer <= glowEnd)
        return false;
    StartBeam(Queen(), VictimPlace(), risingBeam);
    timer = 0.0f;
    return true;
}

bool Queen_VS_X::Beam(float frameTime, const Vertex*) {
    timer += frameTime;
    if (timer <= beamTime)
        return false;
    timer = 0.0f;
    canShown = false;
    victimGone = false;
    Queen().canLit = false;
    Queen().canPosition = VictimPlace();
    Queen().can->GetMaterial()->GetColor()[3] = 0.0f;
    return true;
}

bool Queen_VS_X::Dissolve(float frameTime, const Vertex* eyePosition) {
    if (!victimGone) {
        victimGone = victim->FadeOut(frameTime * dissolveRate, eyePosition);
        if (victimGone) {
            Queen().canVisible = true;
            Queen().can->SetAnimation(Queen().canFrozenAnimation);
        }
    }
    if (victimGone)
        FadeCanIn(frameTime);
    if (!canShown)
        return false;
    Queen().StopTransformationSound();
    Queen().beamActive = false;
    Queen().glowActive = false;
    Queen().PlayDropCanSound();
    return true;
}

void Queen_VS_X::FadeCanIn(float frameTime) {
    Queen3D& queen = Queen();
    float& alpha = queen.can->GetMaterial()->GetColor()[3];
    alpha += frameTime * alphaPerSecond;
    if (alpha < 1.0f)
        return;
    alpha = 1.0f;
    queen.canDropList.Rewind();
    queen.can->PlayBorrowedList(&queen.canDropList);
    queen.canLit = true;
    canShown = true;
}

bool Queen_VS_X::DropCan(float frameTime, const Vertex*) {
    if (!Queen().can->IsAnimationFinished())
        return false;
    SendUfo(frameTime);
    return true;
}

void Queen_VS_X::SendUfo(float frameTime) {
    Queen3D& queen = Queen();
    queen.StartUfoSound();
    queen.ufoLit = false;
    queen.ufoVisible = true;
    ufoDirectionX = RandomSide();
    ufoDirectionZ = RandomSide();
    queen.ufoPosition = {VictimPlace().x + static_cast<float>(ufoDirectionX) * ufoStartDistance,
                         ufoStartHeight,
                         VictimPlace().z + static_cast<float>(ufoDirectionZ) * ufoStartDistance};
    queen.ufo->speed = ufoClipSpeed;
    queen.ufo->GetMaterial()->GetColor()[3] = frameTime / ufoFirstAlpha;
}

bool Queen_VS_X::UfoAppears(float frameTime, const Vertex*) {
    ufoColor = Queen().ufo->GetMaterial()->GetColor();
    float& alpha = ufoColor[3];
    alpha += frameTime * alphaPerSecond;
    const bool appeared = alpha > 1.0f;
    if (appeared) {
        // From now on it is drawn lit and without blending, so that its alpha no longer shows.
        alpha = 0.0f;
        Queen().ufoLit = true;
        timer = 0.0f;
    }
    MoveUfoIn(frameTime);
    return appeared;
}

void Queen_VS_X::MoveUfoIn(float frameTime) {
    if (ufoSpeed > ufoCruisingSpeed)
        ufoSpeed -= ufoSpeed * frameTime / ufoBraking;
    ufoStep = frameTime * ufoSpeed;
    Queen().ufoPosition.x -= static_cast<float>(ufoDirectionX) * ufoStep;
    Queen().ufoPosition.z -= static_cast<float>(ufoDirectionZ) * ufoStep;
}

bool Queen_VS_X::UfoComesIn(float frameTime, const Vertex*) {
    return InSlices(frameTime, [this](float slice) { return ComeIn(slice); });
}

bool Queen_VS_X::ComeIn(float slice) {
    timer += slice;
    MoveUfoIn(slice);
    Vertex& ufo = Queen().ufoPosition;
    ufo.y -= ufoStep * ufoSinkRate;
    // Either axis will do: it comes in at the same rate on both.
    if (std::fabs(VictimPlace().x - ufo.x) >= ufoArrivalWindow &&
        std::fabs(VictimPlace().z - ufo.z) >= ufoArrivalWindow)
        return false;
    ufo.x = VictimPlace().x;
    ufo.z = VictimPlace().z;
    return true;
}

bool Queen_VS_X::UfoSinks(float frameTime, const Vertex*) {
    Vertex& ufo = Queen().ufoPosition;
    ufoStep = frameTime * ufoSpeed;
    ufo.y -= ufoStep;
    if (std::fabs(VictimPlace().y - ufo.y) >= ufoHoverWindow)
        return false;
    ufo.y = ufoHoverHeight;
    StartBeam(Queen(), VictimPlace(), tractorBeam);
    Queen().PlayUfoBeamSound();
    timer = 0.0f;
    return true;
}

bool Queen_VS_X::PickUp(float frameTime, const Vertex*) {
    timer += frameTime;
    if (timer <= pullDelay)
        return false;
    Vertex& can = Queen().canPosition;
    can.y += frameTime;
    if (can.y <= canHoldHeight)
        return false;
    can.y = canHoldHeight;
    ufoDirectionX = RandomInRange(0, 2) - 1;
    ufoDirectionZ = RandomInRange(0, 2) - 1;
    timer = 0.0f;
    Queen().canVisible = false;
    Queen().beamActive = false;
    Queen().PlayUfoEngageSound();
    return true;
}

bool Queen_VS_X::Pause(float frameTime, const Vertex*) {
    timer += frameTime;
    if (timer <= pauseTime)
        return false;
    Queen().StopUfoSound();
    timer = 0.0f;
    return true;
}

bool Queen_VS_X::UfoLeaves(float frameTime, const Vertex*) {
    Queen3D& queen = Queen();
    ufoSpeed += ufoSpeed / ufoAcceleration;
    ufoStep = ufoSpeed * frameTime;
    queen.ufoPosition.x -= static_cast<float>(ufoDirectionX) * ufoStep;
    queen.ufoPosition.y += ufoStep;
    queen.ufoPosition.z -= static_cast<float>(ufoDirectionZ) * ufoStep;
    timer += frameTime;
    if (timer <= leavingTime)
        return false;
    // Its alpha has been 0 since it was lit: it is gone at once, and does not fade.
    ufoColor[3] = 0.0f;
    queen.ufoVisible = false;
    attacker->SetTarget(ColumnOf(*victim), RowOf(*victim), fieldSize);
    queen.engineActive = true;
    queen.StopUfoSound();
    attacker->PlayAnimationList(&attacker->runList);
    return true;
}

bool Queen_VS_X::Fly(float frameTime, const Vertex*) {
    if (!attacker->Walk(frameTime))
        return false;
    Queen().engineActive = false;
    Queen().engineEmitter->Restart();
    attacker->SetTargetHeading(attackerHeading);
    return true;
}

bool Queen_VS_X::TurnBack(float frameTime, const Vertex*) {
    return !needsTurn || TurnFor(frameTime, *attacker);
}

}  // namespace tolvane
