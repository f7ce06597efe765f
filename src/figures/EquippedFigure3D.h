#pragma once

#include "figures/ChessFigure3D.h"

namespace tolvane {

struct FigureValues;
class TextureHandler;

// A figure with everything that its row of the table of figures gives it: clips, paint, emitters, sounds. The
// six kinds derive from it and add only what no other kind does.
class EquippedFigure3D : public ChessFigure3D {
public:
    // Leaves the matrix as the figure's own: the caller pushes and pops.
    void Draw(int renderMode, bool useDisplayLists, bool selectionPass, bool blending,
              const Vertex* eyePosition, const Vertex* lightPosition) override;
    // From full alpha two seconds; gives up the shader for good and ends with the figure inactive.
    bool FadeOut(float dt, const Vertex* eyePosition) override;
    bool RunDamage(float dt, const Vertex* eyePosition) override;
    bool RunAttack(float dt, const Vertex* eyePosition) override;
    void PlayDeathSound() override;
    void StartMoveSound() override;
    void StopMoveSound() override;

protected:
    // The row of the table stays where it is for the whole program.
    EquippedFigure3D(int atColumn, int atRow, Player ofPlayer, FigureType type, const FigureValues& row,
                     MD2_Instance* ofInstance, Shader* withShader, TextureHandler* textures,
                     SoundManager* withSound);
    ~EquippedFigure3D() = default;

    // The effects that are on, in the figure's own space.
    virtual void DrawEffects(bool blending);

    // A figure that has begun to fade is drawn without its shader and blended.
    void BeginFadedDrawing(bool blending) const;
    void EndFadedDrawing() const;
    void DrawInstance(int renderMode, bool selectionPass, const Vertex* eyePosition,
                      const Vertex* lightPosition) const;

    const FigureValues& values;
};

}  // namespace tolvane
