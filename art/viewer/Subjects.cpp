#include "viewer/Subjects.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "assets/Gl.h"
#include "assets/MD2_Instance.h"
#include "assets/MD2_Reader.h"
#include "assets/MD2_Store.h"
#include "assets/ParticleEffect3.h"
#include "assets/ShaderStore.h"
#include "assets/SoundManager.h"
#include "assets/TextureHandler.h"
#include "figures/Bishop3D.h"
#include "figures/King3D.h"
#include "figures/Knight3D.h"
#include "figures/Pawn3D.h"
#include "figures/Queen3D.h"
#include "figures/Rook3D.h"
#include "scene/ChessBoard3D.h"
#include "scene/DrawInstance.h"

namespace tolvane::viewer {

namespace {

const Vertex sunPosition{0.0f, 30.0f, 0.0f};

// The stores of the viewer; they live to the end of the process, as their users do.
struct Stores {
    TextureHandler textures;
    MD2_Store models{&textures};
    ShaderStore shaders;
    SoundManager sounds;
    Shader* shader =
        shaders.Load("PerPixelLighting", "shader/Per_Pixel_Lighting.vert", "shader/Per_Pixel_Lighting.frag");
};

struct FigureRow {
    const char* name;
    FigureType type;
    float scale;
    float height;
};

constexpr FigureRow figureRows[] = {
    {.name = "pawn", .type = FigureType::Pawn, .scale = 0.27f, .height = 2.0f},
    {.name = "rook", .type = FigureType::Rook, .scale = 0.45f, .height = 2.5f},
    {.name = "bishop", .type = FigureType::Bishop, .scale = 0.35f, .height = 2.8f},
    {.name = "knight", .type = FigureType::Knight, .scale = 0.6f, .height = 2.5f},
    {.name = "queen", .type = FigureType::Queen, .scale = 2.6f, .height = 3.3f},
    {.name = "king", .type = FigureType::King, .scale = 0.48f, .height = 3.6f},
};

struct PropRow {
    const char* name;
    const char* model;
    const char* picture;
    float scale;
    float size;
    float centre;
    bool lit;
};

constexpr PropRow CanRow(const char* name, const char* label) {
    return {.name = name,
            .model = "models/can/can.md2",
            .picture = label,
            .scale = 0.12f,
            .size = 1.8f,
            .centre = 0.7f,
            .lit = true};
}

constexpr PropRow propRows[] = {
    {.name = "chessboard",
     .model = "models/chess3D/chessboard/chessboard.md2",
     .picture = "models/chess3D/chessboard/chessboard.tga",
     .scale = 0.8f,
     .size = 44.0f,
     .centre = -5.0f,
     .lit = true},
    {.name = "engine",
     .model = "models/engine/engine.md2",
     .picture = "models/engine/engine.tga",
     .scale = 0.3f,
     .size = 13.0f,
     .centre = -1.2f,
     .lit = true},
    {.name = "sun",
     .model = "models/sun/sun.md2",
     .picture = "models/sun/orange_star.tga",
     .scale = 0.125f,
     .size = 4.5f,
     .centre = 0.0f,
     .lit = false},
    {.name = "ufo",
     .model = "models/ufo/ufo.md2",
     .picture = "models/ufo/ufo.tga",
     .scale = 0.25f,
     .size = 4.8f,
     .centre = 0.5f,
     .lit = true},
    CanRow("can-cola", "models/can/coke.tga"),
    CanRow("can-vanilla", "models/can/cokeVanilla.tga"),
    CanRow("can-orange", "models/can/fanta.tga"),
    CanRow("can-lime", "models/can/sprite.tga"),
    CanRow("can-bitter", "models/can/bitterLemon.tga"),
    CanRow("can-tonic", "models/can/tonicWater.tga"),
};

// The clips of a model file, in the file's order.
std::vector<Clip> ClipsOf(const std::string& path) {
    const std::unique_ptr<MD2_Model> model(MD2_Reader().Load(path));
    std::vector<std::pair<int, Clip>> found;
    for (const auto& [name, group] : model->GetAnimations())
        found.push_back({group.firstFrame, {name, group.frameCount + 1}});
    std::sort(found.begin(), found.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<Clip> clips;
    clips.reserve(found.size());
    for (const auto& [first, clip] : found)
        clips.push_back(clip);
    return clips;
}

void Play(MD2_Instance& instance, const std::string& clip) {
    // A clip that runs is not restarted, so another mode comes between; what it owes is drawn at once.
    instance.SetAnimation({clip, MD2_AnimationMode::Freeze, 1.0f});
    instance.Animate(0, 0.0f);
    instance.SetAnimation({clip, MD2_AnimationMode::Loop, 1.0f});
}

ChessFigure3D* MakeFigure(const FigureRow& row, Player player, Stores& stores, MD2_Instance* instance) {
    const auto make = [&]<typename Figure>() -> ChessFigure3D* {
        return new Figure(0, 0, player, row.type, instance, stores.shader, &stores.textures, &stores.sounds);
    };
    switch (row.type) {
        case FigureType::Pawn: return make.operator()<Pawn3D>();
        case FigureType::Rook: return make.operator()<Rook3D>();
        case FigureType::Knight: return make.operator()<Knight3D>();
        case FigureType::Bishop: return make.operator()<Bishop3D>();
        case FigureType::King: return make.operator()<King3D>();
        case FigureType::Queen: {
            const std::vector<MD2_Instance*> cans{
                stores.models.CreateInstance("models/can/can.md2", "models/can/coke.tga", "", 0.12f)};
            MD2_Instance* const ufo =
                stores.models.CreateInstance("models/ufo/ufo.md2", "models/ufo/ufo.tga", "", 0.25f);
            return new Queen3D(0, 0, player, row.type, instance, cans, ufo, stores.shader, &stores.textures,
                               &stores.sounds);
        }
    }
    return nullptr;
}

std::string PaintOf(Player player) {
    return player == Player::White ? "white" : "black";
}

std::string FigureName(const FigureRow& row, Player player) {
    return std::string(row.name) + "-" + PaintOf(player);
}

Subject FigureSubject(const FigureRow& row, Player player, Stores& stores) {
    const std::string folder = std::string("models/chess3d/") + row.name + "/";
    MD2_Instance* const instance = stores.models.CreateInstance(
        folder + row.name + ".md2", folder + PaintOf(player) + ".tga", folder + "normal.tga", row.scale);
    ChessFigure3D* const figure = MakeFigure(row, player, stores, instance);
    if (player == Player::Black)
        figure->RotateY(-180.0f);
    Subject subject;
    subject.name = FigureName(row, player);
    subject.size = row.height * 1.45f;
    subject.centre = row.height * 0.5f;
    subject.clips = ClipsOf(folder + row.name + ".md2");
    subject.play = [instance](const std::string& clip) { Play(*instance, clip); };
    subject.step = [instance](float dt) { instance->Animate(0, dt); };
    subject.draw = [figure] { figure->Draw(0, true, false, true, &sunPosition, &sunPosition); };
    return subject;
}

Subject PropSubject(const PropRow& row, Stores& stores) {
    MD2_Instance* const instance = stores.models.CreateInstance(row.model, row.picture, "", row.scale);
    Shader* const shader = row.lit ? stores.shader : nullptr;
    Subject subject;
    subject.name = row.name;
    subject.size = row.size;
    subject.centre = row.centre;
    subject.clips = ClipsOf(row.model);
    subject.play = [instance](const std::string& clip) { Play(*instance, clip); };
    subject.step = [instance](float dt) { instance->Animate(0, dt); };
    subject.draw = [instance, shader] {
        if (shader == nullptr)
            glDisable(GL_LIGHTING);
        DrawInstance(*instance, 0, false, shader, &sunPosition, &sunPosition);
        glEnable(GL_LIGHTING);
    };
    return subject;
}

// The board sets a material of its own.
void GiveBoardItsMaterial(Subject& board, Stores& stores) {
    MD2_Instance* const instance = stores.models.CreateInstance(
        "models/chess3D/chessboard/chessboard.md2", "models/chess3D/chessboard/chessboard.tga", "", 0.8f);
    auto* const drawable = new ChessBoard3D(instance, stores.shader, new ParticleEffect3(&stores.textures));
    board.draw = [drawable] { drawable->Draw(0, true, false, true, &sunPosition, &sunPosition); };
}

}  // namespace

std::vector<Subject> MakeSubjects(const std::function<bool(const std::string& name)>& wanted) {
    auto* const stores = new Stores;
    std::vector<Subject> subjects;
    for (const FigureRow& row : figureRows)
        for (const Player player : {Player::White, Player::Black})
            if (wanted(FigureName(row, player)))
                subjects.push_back(FigureSubject(row, player, *stores));
    for (const PropRow& row : propRows)
        if (wanted(row.name))
            subjects.push_back(PropSubject(row, *stores));
    for (Subject& subject : subjects)
        if (subject.name == "chessboard")
            GiveBoardItsMaterial(subject, *stores);
    return subjects;
}

}  // namespace tolvane::viewer
