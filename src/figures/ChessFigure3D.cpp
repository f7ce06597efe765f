#include "figures/ChessFigure3D.h"

#include <cassert>
#include <cmath>
#include <cstddef>

#include "actions/Action.h"
#include "assets/MD2_Instance.h"
#include "assets/Numbers.h"
#include "assets/ParticleEffect.h"
#include "assets/SoundManager.h"
#include "assets/TrivialRelease.h"

namespace tolvane {

namespace {

constexpr float turningSpeed = 30.0f;  // degrees a second for each unit of walking speed
constexpr float headingWindow = 0.08f;
constexpr float arrivalWindow = 0.03f;
constexpr float diagonal = 1.4142f;
constexpr int fullVolume = 128;

bool Near(float place, float target) {
    return std::fabs(place - target) < arrivalWindow;
}

// Whether something that moves in a direction has reached or passed its target.
bool HasArrived(float place, float target, int direction) {
    return Near(place, target) || Sign(target - place) != direction;
}

}  // namespace

ChessFigure3D::ChessFigure3D(int atColumn, int atRow, Player ofPlayer, FigureType type,
                             MD2_Instance* ofInstance, Shader* withShader, SoundManager* withSound)
    : Element3D(static_cast<unsigned int>(atColumn), static_cast<unsigned int>(atRow)),
      player(ofPlayer),
      figureType(type),
      targetColumn(atColumn),
      targetRow(atRow),
      instance(ofInstance),
      shader(withShader),
      sound(withSound) {
    TakeBound(*instance);
}

ChessFigure3D::~ChessFigure3D() {
    if (action)
        TrivialRelease()(action);
    delete attackEmitter;
    delete damageEmitter;
    delete heavyDamageEmitter;
    delete[] attackAnimations;
}

void ChessFigure3D::Update(int renderMode, float dt) {
    lastAnimateResult = instance->Animate(renderMode, dt);
}

bool ChessFigure3D::UpdateEffects(float dt, const Vertex* eyePosition) {
    if (!action || !action->Step(dt, eyePosition))
        return false;
    TrivialRelease()(action);
    action = nullptr;
    busy = false;
    return true;
}

void ChessFigure3D::SetAction(Action* script) {
    assert(script != nullptr);
    action = script;
    busy = true;
}

void ChessFigure3D::SetWaiting(bool waiting) {
    waitingFlag = waiting;
}

void ChessFigure3D::SetAnimation(MD2_Animation animation) {
    instance->SetAnimation(animation);
}

void ChessFigure3D::PlayAnimationList(AnimationList* list) {
    list->Rewind();
    instance->PlayBorrowedList(list);
}

bool ChessFigure3D::IsAnimationFinished() {
    return instance->IsAnimationFinished();
}

bool ChessFigure3D::Walk(float dt) {
    if (firstWalkStep) {
        StartMoveSound();
        firstWalkStep = false;
    }

    // A higher row lies at a lower z.
    const int alongX = Sign(targetColumn - Column());
    const int alongZ = Sign(Row() - targetRow);
    if (alongX == 0 && alongZ == 0)
        return false;

    const float speed = alongX != 0 && alongZ != 0 ? walkSpeed / diagonal : walkSpeed;
    position.x += static_cast<float>(alongX) * speed * dt;
    position.z += static_cast<float>(alongZ) * speed * dt;
    const bool arrivedAlongX = alongX != 0 && HasArrived(position.x, targetX, alongX);
    const bool arrivedAlongZ = alongZ != 0 && HasArrived(position.z, targetZ, alongZ);
    if (!arrivedAlongX && !arrivedAlongZ)
        return false;

    TakeTarget();
    instance->NextAnimation();
    StopMoveSound();
    firstWalkStep = true;
    return true;
}

void ChessFigure3D::TakeTarget() {
    position.x = targetX;
    position.z = targetZ;
    column = static_cast<unsigned int>(targetColumn);
    row = static_cast<unsigned int>(targetRow);
}

void ChessFigure3D::SetTarget(int toColumn, int toRow, float fieldSize) {
    targetColumn = toColumn;
    targetRow = toRow;
    targetX = position.x + static_cast<float>(toColumn - Column()) * fieldSize;
    targetZ = position.z - static_cast<float>(toRow - Row()) * fieldSize;
}

void ChessFigure3D::SetTargetHeading(float heading) {
    targetHeading = heading;
}

bool ChessFigure3D::TurnToTargetHeading(float dt) {
    // Not through RotateY, which would make a full turn 0 and never let a heading of 360 be reached.
    rotationY += static_cast<float>(Sign(targetHeading - rotationY)) * dt * walkSpeed * turningSpeed;
    if (std::fabs(targetHeading - rotationY) >= headingWindow)
        return false;
    rotationY = targetHeading;
    return true;
}

bool ChessFigure3D::FadeOut(float, const Vertex*) {
    return true;
}

bool ChessFigure3D::RunDamage(float, const Vertex*) {
    return true;
}

bool ChessFigure3D::RunAttack(float, const Vertex*) {
    return true;
}

Material* ChessFigure3D::GetInstanceMaterial() {
    return instance->GetMaterial();
}

void ChessFigure3D::PlayDeathSound() {}

void ChessFigure3D::PlayExplosionSound() {}

void ChessFigure3D::StartMoveSound() {}

void ChessFigure3D::StopMoveSound() {}

bool ChessFigure3D::PlaySelectedSound() {
    return PlayOneOf(selectedSounds);
}

bool ChessFigure3D::PlayAckSound() {
    return PlayOneOf(ackSounds);
}

bool ChessFigure3D::PlayOneOf(const std::vector<std::string>& voices) {
    if (voices.empty())
        return false;
    const int chosen = RandomInRange(1, static_cast<int>(voices.size()));
    sound->PlaySample(voices[static_cast<std::size_t>(chosen - 1)], fullVolume, 0);
    return true;
}

}  // namespace tolvane
