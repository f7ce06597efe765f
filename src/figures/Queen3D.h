#pragma once

#include <vector>

#include "assets/ParticleEffect6.h"
#include "assets/ParticleEffect7.h"
#include "figures/EquippedFigure3D.h"

namespace tolvane {

class ParticleEffect3;

// The queen and her supporting cast: the can into which she turns her victim, the saucer that collects it, a
// beam, a glow and a jet engine. Her scene moves can and saucer by writing her fields; she draws and animates
// them while they are visible. Both queens share the same models, for one scene runs at a time.
class Queen3D final : public EquippedFigure3D {
public:
    // Nothing of what is passed in is owned. There is at least one can.
    Queen3D(int atColumn, int atRow, Player ofPlayer, FigureType type, MD2_Instance* ofInstance,
            std::vector<MD2_Instance*> withCans, MD2_Instance* withUfo, Shader* withShader,
            TextureHandler* textures, SoundManager* withSound);
    ~Queen3D();

    void Draw(int renderMode, bool useDisplayLists, bool selectionPass, bool blending,
              const Vertex* eyePosition, const Vertex* lightPosition) override;
    void Update(int renderMode, float dt) override;
    bool UpdateEffects(float dt, const Vertex* eyePosition) override;
    // Marks her busy as well, so that the frame already updates her.
    void SetTarget(int toColumn, int toRow, float fieldSize) override;
    // True at once: she never shoots.
    bool RunAttack(float dt, const Vertex* eyePosition) override;

    virtual void StartTransformationSound();
    virtual void StopTransformationSound();
    virtual void PlayDropCanSound();
    virtual void StartUfoSound();  // loops until it is stopped
    virtual void StopUfoSound();
    virtual void PlayUfoBeamSound();
    virtual void PlayUfoEngageSound();
    // In world space; the matrix comes back as it was.
    virtual void DrawCan(int renderMode, bool useDisplayLists, bool selectionPass, const Vertex* eyePosition,
                         const Vertex* lightPosition);
    virtual void DrawUfo(int renderMode, bool useDisplayLists, bool selectionPass, const Vertex* eyePosition,
                         const Vertex* lightPosition);

    // Takes one of the cans at random for the next scene.
    void ChooseCan();

    // What her scene plays and writes directly
    bool engineActive = false;                 // while she flies
    ParticleEffect3* engineEmitter = nullptr;  // owned
    std::vector<MD2_Instance*> cans;
    MD2_Instance* can = nullptr;  // the one of the next scene
    Vertex canPosition;
    bool canVisible = false;
    bool canAnimationFinished = false;
    bool canLit = false;  // cleared: blended and without shader, as it fades in
    Shader* canShader = nullptr;
    MD2_Animation canStandAnimation;
    MD2_Animation canFrozenAnimation;  // the pose in which it fades in
    AnimationList canDropList;
    MD2_Instance* ufo;
    Vertex ufoPosition{0.0f, 10.0f, 0.0f};
    bool ufoVisible = false;
    bool ufoAnimationFinished = false;
    bool ufoLit = false;
    Shader* ufoShader = nullptr;
    MD2_Animation ufoAnimation;
    ParticleEffect6 beamEmitter;
    ParticleEffect7 glowEmitter;
    bool beamActive = false;
    bool glowActive = false;

protected:
    void DrawEffects(bool blending) override;
};

}  // namespace tolvane
