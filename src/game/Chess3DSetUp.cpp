// The part of Chess3D that runs once, before the first frame: what the board, the figures, the texts and the
// sounds are made of.
#include <algorithm>
#include <array>
#include <iostream>
#include <optional>

#include "assets/MD2_Instance.h"
#include "assets/MD2_Store.h"
#include "assets/ParticleEffect3.h"
#include "assets/ShaderStore.h"
#include "assets/SoundManager.h"
#include "figures/Bishop3D.h"
#include "figures/King3D.h"
#include "figures/Knight3D.h"
#include "figures/Pawn3D.h"
#include "figures/Queen3D.h"
#include "figures/Rook3D.h"
#include "frame/Engine3D.h"
#include "game/Chess3D.h"
#include "game/LastingObjects.h"
#include "scene/BoardSelectionGrid.h"
#include "scene/ChessBoard3D.h"
#include "scene/FieldCentre.h"
#include "scene/Glut.h"
#include "scene/ScoreBoard.h"
#include "scene/TextBox2D.h"

namespace tolvane {

namespace {

struct AssetRow {
    const char* model;
    const char* diffuse;
    const char* normal;
    float scale;
};

constexpr int figureKinds = 6;

// By ChessGameFigure code. The store knows a file by its path, and the directory is spelt in two ways: what
// is spelt alike is loaded once.
constexpr std::array figureRows{
    AssetRow{.model = "models/chess3D/pawn/pawn.md2",
             .diffuse = "models/chess3D/pawn/white.tga",
             .normal = "models/chess3D/pawn/normal.tga",
             .scale = 0.27f},
    AssetRow{.model = "models/chess3D/rook/rook.md2",
             .diffuse = "models/chess3D/rook/white.tga",
             .normal = "models/chess3D/rook/normal.tga",
             .scale = 0.45f},
    AssetRow{.model = "models/chess3d/knight/knight.md2",
             .diffuse = "models/chess3d/knight/white.tga",
             .normal = "models/chess3d/knight/normal.tga",
             .scale = 0.6f},
    AssetRow{.model = "models/chess3d/bishop/bishop.md2",
             .diffuse = "models/chess3d/bishop/white.tga",
             .normal = "models/chess3d/bishop/normal.tga",
             .scale = 0.35f},
    AssetRow{.model = "models/chess3d/queen/queen.md2",
             .diffuse = "models/chess3d/queen/white.tga",
             .normal = "models/chess3d/queen/normal.tga",
             .scale = 2.6f},
    AssetRow{.model = "models/chess3d/king/king.md2",
             .diffuse = "models/chess3d/king/white.tga",
             .normal = "models/chess3d/king/normal.tga",
             .scale = 0.48f},
    AssetRow{.model = "models/chess3D/pawn/pawn.md2",
             .diffuse = "models/chess3d/pawn/black.tga",
             .normal = "models/chess3d/pawn/normal.tga",
             .scale = 0.27f},
    AssetRow{.model = "models/chess3D/rook/rook.md2",
             .diffuse = "models/chess3D/rook/black.tga",
             .normal = "models/chess3D/rook/normal.tga",
             .scale = 0.45f},
    AssetRow{.model = "models/chess3D/knight/knight.md2",
             .diffuse = "models/chess3D/knight/black.tga",
             .normal = "models/chess3D/knight/normal.tga",
             .scale = 0.6f},
    AssetRow{.model = "models/chess3D/bishop/bishop.md2",
             .diffuse = "models/chess3D/bishop/black.tga",
             .normal = "models/chess3D/bishop/normal.tga",
             .scale = 0.35f},
    AssetRow{.model = "models/chess3D/queen/queen.md2",
             .diffuse = "models/chess3D/queen/black.tga",
             .normal = "models/chess3D/queen/normal.tga",
             .scale = 2.6f},
    AssetRow{.model = "models/chess3D/king/king.md2",
             .diffuse = "models/chess3D/king/black.tga",
             .normal = "models/chess3D/king/normal.tga",
             .scale = 0.48f},
};
static_assert(figureRows.size() == 12);

constexpr AssetRow boardRow{.model = "models/chess3D/chessboard/chessboard.md2",
                            .diffuse = "models/chess3D/chessboard/chessboard.tga",
                            .normal = "models/chess3D/chessboard/chessboard_normal.tga",
                            .scale = 0.8f};

// One picture serves as colour and as normal map.
constexpr AssetRow engineRow{.model = "models/engine/engine.md2",
                             .diffuse = "models/engine/engine.tga",
                             .normal = "models/engine/engine.tga",
                             .scale = 0.3f};

constexpr AssetRow ufoRow{.model = "models/ufo/ufo.md2",
                          .diffuse = "models/ufo/ufo.tga",
                          .normal = "models/ufo/normal.tga",
                          .scale = 0.25f};

constexpr AssetRow CanRow(const char* label) {
    return {
        .model = "models/can/can.md2", .diffuse = label, .normal = "models/can/normal.tga", .scale = 0.12f};
}

constexpr std::array canRows{
    CanRow("models/can/coke.tga"),        CanRow("models/can/cokeVanilla.tga"),
    CanRow("models/can/fanta.tga"),       CanRow("models/can/sprite.tga"),
    CanRow("models/can/bitterLemon.tga"), CanRow("models/can/tonicWater.tga"),
};
static_assert(canRows.size() == 6);

constexpr std::array errorCues{"media/error0.wav", "media/error1.wav", "media/error2.wav"};
constexpr std::array checkCues{"media/check0.wav", "media/check1.wav"};
constexpr std::array mateCues{"media/checkMate0.wav"};

struct Rgb {
    float red;
    float green;
    float blue;

    explicit operator Color() const { return {red, green, blue}; }
};

struct Plate {
    int x;
    int y;
    int width;
    int height;
    Rgb color;
    float alpha;
};

struct BoxRow {
    std::optional<Plate> plate{};
    const char* text = "";
    int textX = 0;
    int textY = 0;
    Rgb textColor{0.0f, 0.8f, 0.0f};
    bool visible = false;
};

constexpr BoxRow spareRow{.textColor = {0.8f, 0.0f, 0.0f}};
constexpr BoxRow nextPlayerRow{.plate = Plate{20, 20, 120, 35, {0.0f, 0.0f, 0.5f}, 0.4f},
                               .text = "Next: White",
                               .textX = 30,
                               .textY = 45,
                               .visible = true};
constexpr BoxRow promotionRow{.plate = Plate{580, 20, 200, 150, {0.0f, 0.0f, 0.5f}, 0.4f},
                              .text = "Select a Figure:\n1: Queen\n2: Rook\n3: Knight\n4: Bishop",
                              .textX = 590,
                              .textY = 45};
constexpr BoxRow quitRow{.plate = Plate{325, 280, 150, 35, {0.0f, 0.0f, 0.6f}, 0.8f},
                         .text = "Press Q to quit",
                         .textX = 335,
                         .textY = 305};

std::unique_ptr<TextBox2D> BuildBox(const BoxRow& row, float width, float height) {
    auto box = std::make_unique<TextBox2D>(width, height);
    if (row.plate)
        box->SetBackground(row.plate->x, row.plate->y, row.plate->width, row.plate->height,
                           Color(row.plate->color), row.plate->alpha);
    box->SetFont(GLUT_BITMAP_HELVETICA_18, Color(row.textColor));
    box->SetText(row.text, row.textX, row.textY);
    box->SetVisible(row.visible);
    return box;
}

FigureAsset MakeAsset(const AssetRow& row) {
    return {.modelPath = row.model, .diffusePath = row.diffuse, .normalPath = row.normal, .scale = row.scale};
}

constexpr int CodeOf(Player player, FigureType type) {
    return (player == Player::Black ? figureKinds : 0) + static_cast<int>(type);
}

}  // namespace

Chess3D::Chess3D() : figures(64) {}

Chess3D::~Chess3D() {
    spareBox.reset();
    nextPlayerBox.reset();
    promotionPrompt.reset();
    quitBox.reset();
    selectionGrid.reset();
    leftScoreBoard.reset();
    rightScoreBoard.reset();
    figureAssets.reset();
}

void Chess3D::Initialize(Engine3D* frame) {
    std::cout << "Chess3D - initializing ...\n";
    engine = frame;
    figures.assign(64, nullptr);
    textures = engine->GetTextures();
    models = engine->GetModels();
    shaders = engine->GetShaders();
    sounds = engine->GetSounds();
    figureAssets = std::make_unique<FigureAsset[]>(figureRows.size());
    std::ranges::transform(figureRows, figureAssets.get(), MakeAsset);

    InitializeBoard(chessGame.GetBoardView());
    ClearSelection();
    currentPlayer = Player::White;
    demoAllowed = true;
    demoRunning = false;
    BuildTextBoxes();
    LoadSounds();
    sounds->PlayMusic("media/music0.ogg");
    std::cout << "Chess3D - initializing finished\n";
}

void Chess3D::InitializeBoard(ChessBoardView view) {
    std::cout << "initializing board\n";
    boardOriginX = -3.5f * fieldSize;
    boardOriginZ = 3.5f * fieldSize;
    engine->ClearScene();
    selectionGrid = std::make_unique<BoardSelectionGrid>(fieldSize, fieldSize);
    engine->SetSelectionGrid(selectionGrid.get());
    Shader* const shader =
        shaders->Load("PerPixelLighting", "shader/Per_Pixel_Lighting.vert", "shader/Per_Pixel_Lighting.frag");

    auto* const flames = MakeLasting<ParticleEffect3>(textures);
    engine->AddDrawable(MakeLasting<ChessBoard3D>(LoadModel(MakeAsset(boardRow)), shader, flames));
    BuildScoreBoards(shader);
    canModels.clear();
    for (const AssetRow& row : canRows)
        canModels.push_back(LoadModel(MakeAsset(row)));
    ufoModel = LoadModel(MakeAsset(ufoRow));

    for (int row = 0; row < 8; ++row)
        for (int column = 0; column < 8; ++column)
            SetUpField(column, row, view.FigureAt(column, row), shader);
    std::cout << "initializing board - finished\n";
}

void Chess3D::SetUpField(int column, int row, ChessGameFigure code, Shader* shader) {
    SetFigure3D(column, row, nullptr);
    if (code == ChessGameFigure::NoFigure)
        return;
    const int number = static_cast<int>(code);
    ChessFigure3D* const figure =
        MakeFigure(static_cast<FigureType>(number % figureKinds),
                   number < figureKinds ? Player::White : Player::Black, column, row, shader);
    PlaceFigure(figure);
    engine->AddDrawable(figure);
}

void Chess3D::BuildScoreBoards(Shader* shader) {
    if (!GLEW_EXT_framebuffer_object) {
        std::cout << "No score boards: the graphics driver lacks GL_EXT_framebuffer_object\n";
        return;
    }
    auto* const leftFlames = MakeLasting<ParticleEffect3>(textures);
    auto* const rightFlames = MakeLasting<ParticleEffect3>(textures);
    for (ParticleEffect3* flames : {leftFlames, rightFlames})
        flames->SetSize(1.5f, 1.5f, 0.1f, 0.15f);
    leftScoreBoard = BuildScoreBoard(shader, leftFlames, -27.0f);
    rightScoreBoard = BuildScoreBoard(shader, rightFlames, 27.0f);
}

std::unique_ptr<ScoreBoard> Chess3D::BuildScoreBoard(Shader* shader, ParticleEffect* flames, float x) {
    auto board = std::make_unique<ScoreBoard>(LoadModel(MakeAsset(engineRow)), shader, flames);
    board->Translate(x, 5.0f, 0.0f);
    engine->AddDrawable(board.get());
    return board;
}

void Chess3D::BuildTextBoxes() {
    const auto width = static_cast<float>(engine->GetWidth());
    const auto height = static_cast<float>(engine->GetHeight());
    spareBox = BuildBox(spareRow, width, height);
    nextPlayerBox = BuildBox(nextPlayerRow, width, height);
    promotionPrompt = BuildBox(promotionRow, width, height);
    engine->AddOverlay(promotionPrompt.get());
    quitBox = BuildBox(quitRow, width, height);
    engine->AddOverlay(quitBox.get());
}

void Chess3D::LoadSounds() {
    sounds->LoadSample("media/beep3.wav");
    sounds->LoadSample("media/beep1.wav");
    const auto load = [this](std::vector<std::string>& cues, const auto& paths) {
        cues.assign(paths.begin(), paths.end());
        for (const std::string& path : cues)
            sounds->LoadSample(path);
    };
    load(errorSounds, errorCues);
    load(checkSounds, checkCues);
    load(mateSounds, mateCues);
}

MD2_Instance* Chess3D::LoadModel(const FigureAsset& asset) {
    MD2_Instance* const instance =
        models->CreateInstance(asset.modelPath, asset.diffusePath, asset.normalPath, asset.scale);
    KeepToProcessEnd(instance);
    return instance;
}

ChessFigure3D* Chess3D::MakeFigure(FigureType type, Player player, int column, int row, Shader* shader) {
    MD2_Instance* const instance = LoadModel(figureAssets[CodeOf(player, type)]);
    const auto make = [&]<typename Figure>() -> ChessFigure3D* {
        return MakeLasting<Figure>(column, row, player, type, instance, shader, textures, sounds);
    };
    // clang-format off
    switch (type) {
        case FigureType::Pawn:   return make.operator()<Pawn3D>();
        case FigureType::Rook:   return make.operator()<Rook3D>();
        case FigureType::Knight: return make.operator()<Knight3D>();
        case FigureType::Bishop: return make.operator()<Bishop3D>();
        case FigureType::King:   return make.operator()<King3D>();
        case FigureType::Queen:
            return MakeLasting<Queen3D>(column, row, player, type, instance, canModels, ufoModel, shader, textures,
                                        sounds);
    }
    // clang-format on
    return nullptr;
}

void Chess3D::PlaceFigure(ChessFigure3D* figure) {
    const auto column = static_cast<int>(figure->GetColumn());
    const auto row = static_cast<int>(figure->GetRow());
    figure->Translate(boardOriginX + static_cast<float>(column) * fieldSize, 0.0f,
                      boardOriginZ - static_cast<float>(row) * fieldSize);
    SetFigure3D(column, row, figure);
}

}  // namespace tolvane
