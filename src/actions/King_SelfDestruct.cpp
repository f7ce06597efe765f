#include "actions/King_SelfDestruct.h"

#include "assets/ParticleEffect.h"
#include "figures/King3D.h"

namespace tolvane {

namespace {

constexpr float alarmTime = 0.3f;
constexpr float explosionTime = 3.5f;

}  // namespace

King_SelfDestruct::King_SelfDestruct(ChessFigure3D* mated) : king(mated) {
    king->PlayAnimationList(&king->deathList);
}

bool King_SelfDestruct::Step(float frameTime, const Vertex* eyePosition) {
    switch (state) {
        case 0:
            WaitForAlarm(frameTime);
            // The fuse burns while the alarm is still to come, so that its time passes at double speed.
            [[fallthrough]];
        case 1: WaitForExplosion(frameTime); break;
        case 2: Explode(frameTime, eyePosition); break;
    }
    return false;
}

void King_SelfDestruct::WaitForAlarm(float frameTime) {
    timer += frameTime;
    if (timer <= alarmTime)
        return;
    state = 1;
    static_cast<King3D*>(king)->PlaySelfDestructSound();
    timer = 0.0f;
}

void King_SelfDestruct::WaitForExplosion(float frameTime) {
    timer += frameTime;
    if (timer <= explosionTime)
        return;
    king->damageEmitter->Restart();
    king->damageActive = true;
    king->PlayExplosionSound();
    state = 2;
}

void King_SelfDestruct::Explode(float frameTime, const Vertex* eyePosition) {
    king->RunDamage(frameTime, eyePosition);
    king->FadeOut(frameTime, eyePosition);
}

}  // namespace tolvane
