#pragma once

#include "figures/EquippedFigure3D.h"

namespace tolvane {

// The king fights by his blow alone. His one emitter, damageEmitter, is the explosion in which he goes when
// he is mated; the other two stay null.
class King3D final : public EquippedFigure3D {
public:
    // Nothing of what is passed in is owned.
    King3D(int atColumn, int atRow, Player ofPlayer, FigureType type, MD2_Instance* ofInstance,
           Shader* withShader, TextureHandler* textures, SoundManager* withSound);

    void Draw(int renderMode, bool useDisplayLists, bool selectionPass, bool blending,
              const Vertex* eyePosition, const Vertex* lightPosition) override;
    bool RunDamage(float dt, const Vertex* eyePosition) override;
    bool RunAttack(float dt, const Vertex* eyePosition) override;
    void PlayExplosionSound() override;
    virtual void PlaySelfDestructSound();

protected:
    void DrawEffects(bool blending) override;
};

}  // namespace tolvane
