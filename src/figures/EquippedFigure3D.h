#pragma once

#include "figures/ChessFigure3D.h"

namespace tolvane {

struct EmitterValues;
struct FigureValues;
struct ShotValues;
class TextureHandler;

// A figure with everything that its row of the table of figures gives it: clips, paint, emitters, sounds. The
// six kinds derive from it and add only what no other kind does.
class EquippedFigure3D : public ChessFigure3D {
public:
    // Leaves the matrix as the figure's own: the caller pushes and pops.
    void Draw(int renderMode, bool useDisplayLists, bool selectionPass, bool blending,
              const Vertex* eyePosition, const Vertex* lightPosition) override;
    // Two seconds from full alpha. Gives up the shader for good; the figure ends inactive.
    bool FadeOut(float dt, const Vertex* eyePosition) override;
    // The puffs of a hit: 0.45 seconds from the moment at which effectTimer was 0.
    bool RunDamage(float dt, const Vertex* eyePosition) override;
    // The shots that are pending, one after the other.
    bool RunAttack(float dt, const Vertex* eyePosition) override;
    void PlayDeathSound() override;
    void StartMoveSound() override;
    void StopMoveSound() override;

protected:
    // kind is a row of the table, which outlives the figure.
    EquippedFigure3D(int atColumn, int atRow, Player ofPlayer, FigureType type, const FigureValues& kind,
                     MD2_Instance* ofInstance, Shader* withShader, TextureHandler* textures,
                     SoundManager* withSound);
    ~EquippedFigure3D() = default;

    // The effects that are on, in the figure's own space; the shots are a part of them.
    virtual void DrawEffects(bool blending);
    virtual void DrawShots(bool blending);

    // What has begun to fade has no shader and is drawn blended.
    void BeginFadedDrawing(bool blending) const;
    void EndFadedDrawing() const;

    void PlayOnce(const char* path) const;

    const FigureValues& values;

private:
    void SetUpClips();
    void SetUpMaterial();
    void SetUpEmitters(TextureHandler* textures);
    void SetUpSounds();
    void Fire(const ShotValues& shot);
};

}  // namespace tolvane
