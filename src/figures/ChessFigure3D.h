#pragma once

#include <string>
#include <vector>

#include "assets/AnimationList.h"
#include "assets/MD2_Animation.h"
#include "rules/FigureType.h"
#include "rules/Player.h"
#include "scene/Element3D.h"

namespace tolvane {

class Action;
class MD2_Instance;
class Material;
class ParticleEffect;
class Shader;
class SoundManager;

// A chess figure as it is seen: one animated model on the board with everything a script needs to play a
// scene with it: turning, walking, shooting, being hit, fading away. It knows nothing of the rules. The
// model instance, which the figure does not own, may point at the figure's own lists of clips; so a figure
// keeps its address: it is neither copied nor moved.
//
// Times are seconds, distances world units, angles degrees. A heading is the rotation about y.
class ChessFigure3D : public Element3D {
public:
    ChessFigure3D(const ChessFigure3D&) = delete;
    ChessFigure3D& operator=(const ChessFigure3D&) = delete;

    Player GetPlayer() const { return player; }
    FigureType GetFigureType() const { return figureType; }
    // Null from the first step of the fading on.
    Shader* GetShader() const { return shader; }

    // What the frame asks for
    void Draw(int renderMode, bool useDisplayLists, bool selectionPass, bool blending,
              const Vertex* eyePosition, const Vertex* lightPosition) override = 0;
    void Update(int renderMode, float dt) override;
    // Steps the script; on the frame in which the script ends it is released and the answer is true.
    bool UpdateEffects(float dt, const Vertex* eyePosition) override;

    // What the game and the scripts ask for
    // Takes over a script made with new and marks the figure busy. Null is a mistake of the caller.
    virtual void SetAction(Action* script);
    virtual void SetWaiting(bool waiting);
    virtual void SetAnimation(MD2_Animation animation);
    // Plays one of the figure's own lists from its first entry; the list stays the figure's.
    virtual void PlayAnimationList(AnimationList* list);
    virtual bool IsAnimationFinished();
    // One step towards the target; true on arrival, where position, column and row become the target's.
    // Never true while the target is the figure's own field.
    virtual bool Walk(float dt);
    // The target is relative to where the figure stands: it may lie beyond the board.
    virtual void SetTarget(int toColumn, int toRow, float fieldSize);
    virtual void SetTargetHeading(float heading);
    // One step of a turn, never the short way round a full circle; true once the heading is the target's.
    // Trembles about its goal when a step is longer than 0.16 degrees, so steps should be short.
    virtual bool TurnToTargetHeading(float dt);
    // One step each of vanishing, of taking hits, of shooting; true when there is nothing left to do.
    virtual bool FadeOut(float dt, const Vertex* eyePosition);
    virtual bool RunDamage(float dt, const Vertex* eyePosition);
    virtual bool RunAttack(float dt, const Vertex* eyePosition);
    virtual Material* GetInstanceMaterial();
    virtual void PlayDeathSound();
    virtual void PlayExplosionSound();
    virtual void StartMoveSound();
    virtual void StopMoveSound();
    // A random one of the figure's voices; false, and silence, if it has none.
    virtual bool PlaySelectedSound();
    virtual bool PlayAckSound();

    // What the scripts play and write directly
    MD2_Animation standAnimation;
    MD2_Animation damageAnimation;
    AnimationList runList;                      // a walk
    MD2_Animation* attackAnimations = nullptr;  // owned, one entry
    AnimationList deathList;
    bool attackActive = false;  // which emitters run and are drawn
    bool damageActive = false;
    bool heavyDamageActive = false;
    bool firstWalkStep = true;
    // Owned; the derived classes make them and leave null what they have no use for.
    ParticleEffect* attackEmitter = nullptr;
    ParticleEffect* damageEmitter = nullptr;
    ParticleEffect* heavyDamageEmitter = nullptr;
    bool firstShotPending = false;
    bool secondShotPending = false;
    bool lastAnimateResult = true;
    float effectTimer = 0.0f;  // since the current shot or hit began

protected:
    // At home on a field, looking along its heading 0. Instance, shader and sounds are not owned and outlive
    // the figure.
    ChessFigure3D(int atColumn, int atRow, Player ofPlayer, FigureType type, MD2_Instance* ofInstance,
                  Shader* withShader, SoundManager* withSound);
    ~ChessFigure3D();

    std::vector<std::string> selectedSounds;
    std::vector<std::string> ackSounds;
    Player player;
    FigureType figureType;
    int targetColumn;
    int targetRow;
    float targetX = 0.0f;
    float targetZ = 0.0f;
    MD2_Instance* instance;
    float walkSpeed = 1.0f;    // a second; turning runs at 30 degrees a second for each unit of it
    Action* action = nullptr;  // owned, null when idle
    bool waitingFlag = false;
    float targetHeading = 0.0f;
    Shader* shader;
    SoundManager* sound;

    // The field as signed numbers, as targets are: a rook that castles stands on row -1 for a while.
    int Column() const { return static_cast<int>(column); }
    int Row() const { return static_cast<int>(row); }
    // Puts the figure exactly on its target.
    void TakeTarget();

private:
    bool PlayOneOf(const std::vector<std::string>& voices);
};

}  // namespace tolvane
