#pragma once

#include <memory>
#include <string>
#include <vector>

#include "assets/MD2_Instance.h"
#include "assets/MD2_Store.h"
#include "assets/Shader.h"
#include "assets/SoundManager.h"
#include "assets/TextureHandler.h"
#include "figures/Bishop3D.h"
#include "figures/King3D.h"
#include "figures/Knight3D.h"
#include "figures/Pawn3D.h"
#include "figures/Queen3D.h"
#include "figures/Rook3D.h"

namespace tolvane::test {

constexpr float fieldWidth = 3.5f;

// Where a figure stands on its field, as the game places it.
Vertex FieldPlace(int column, int row);

// Real figures on small models of their own, whose clips have the game's names and fitting lengths, with a
// real shader, textures and sounds. A troupe works in a folder of its own, which holds all files that figures
// open; so it does not matter what the game's own art looks like. One troupe at a time.
class Troupe {
public:
    // How many frames attack and damage of every figure have; queens gather for longer.
    static constexpr int usualFightFrames = 8;

    explicit Troupe(int fightFrames = usualFightFrames);
    ~Troupe();
    Troupe(const Troupe&) = delete;
    Troupe& operator=(const Troupe&) = delete;

    // A figure on its field, turned as its side stands. The troupe owns it.
    ChessFigure3D& Place(Player player, FigureType type, int column, int row);
    Queen3D& PlaceQueen(Player player, int column, int row);
    Knight3D& PlaceKnight(Player player, int column, int row);
    King3D& PlaceKing(Player player, int column, int row);

    // The model that a figure of the troupe plays on.
    MD2_Instance& ModelOf(const ChessFigure3D& figure) const;

    Shader& Light() { return *light; }
    TextureHandler& Textures() { return textures; }
    SoundManager& Sounds() { return *sounds; }
    const std::vector<MD2_Instance*>& Cans() const { return cans; }
    MD2_Instance& Ufo() const { return *ufo; }

    MD2_Instance* MakeInstance(const std::string& model);

private:
    class Folder;
    struct Member {
        const ChessFigure3D* figure;
        MD2_Instance* model;
        std::shared_ptr<void> owned;
    };

    template <typename Figure, typename... Extras>
    Figure& Engage(Player player, FigureType type, int column, int row, const std::string& model,
                   Extras... extras);

    std::unique_ptr<Folder> folder;
    TextureHandler textures;
    MD2_Store models;
    std::unique_ptr<SoundManager> sounds;
    std::unique_ptr<Shader> light;
    std::vector<std::unique_ptr<MD2_Instance>> instances;
    std::vector<MD2_Instance*> cans;
    MD2_Instance* ufo = nullptr;
    std::vector<Member> members;
};

}  // namespace tolvane::test
