#include <GL/glew.h>
#include <SDL_mixer.h>

#include <array>
#include <memory>
#include <set>

#include "assets/InvalidParameterException.h"
#include "figures/Bishop3D.h"
#include "figures/King3D.h"
#include "figures/Knight3D.h"
#include "figures/Pawn3D.h"
#include "figures/Queen3D.h"
#include "figures/Rook3D.h"
#include "game/GameTest.h"
#include "scene/ChessBoard3D.h"
#include "support/GlWindow.h"

namespace tolvane::test {
namespace {

using ::testing::AllOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::StartsWith;

class Chess3DSetUp : public GameTest {};

TEST_F(Chess3DSetUp, BuildsTheWholeScene) {
    Start();
    EXPECT_EQ(ScenePlacement(), startPlacement);
    EXPECT_EQ(engine.GetRenderer().GetSceneList().size(), 35u);
    EXPECT_EQ(TurnText(), "Next: White");
    EXPECT_EQ(CheckText(), "");
    EXPECT_EQ(Picking(), "mouse on, grid visible");
    EXPECT_EQ(game->currentPlayer, Player::White);
    EXPECT_EQ(game->matedPlayer, Player::NoPlayer);
    EXPECT_TRUE(game->demoAllowed);
    EXPECT_FALSE(game->demoRunning);
}

TEST_F(Chess3DSetUp, KnowsNothingBeforeItIsInitialized) {
    const OpenGame fresh;
    EXPECT_EQ(fresh.figures, std::vector<ChessFigure3D*>(64, nullptr));
    EXPECT_FALSE(fresh.demoAllowed);
    EXPECT_EQ(fresh.selectionGrid, nullptr);
    EXPECT_EQ(fresh.figureAssets, nullptr);
}

TEST_F(Chess3DSetUp, ListsBoardThenScoreBoardsThenFiguresRowByRow) {
    Start();
    const std::vector<DrawAble*>& scene = engine.GetRenderer().GetSceneList();
    ASSERT_EQ(scene.size(), 35u);
    EXPECT_NE(dynamic_cast<ChessBoard3D*>(scene[0]), nullptr);
    EXPECT_EQ(scene[1], game->leftScoreBoard.get());
    EXPECT_EQ(scene[2], game->rightScoreBoard.get());
    std::size_t entry = 3;
    for (ChessFigure3D* const figure : game->figures) {
        if (figure == nullptr)
            continue;
        EXPECT_EQ(scene[entry], figure);
        ++entry;
    }
    EXPECT_EQ(entry, 35u);
}

TEST_F(Chess3DSetUp, PutsEveryFigureOnItsField) {
    Start();
    for (const ChessFigure3D* const entry : game->figures) {
        auto* const figure = const_cast<ChessFigure3D*>(entry);
        if (figure == nullptr)
            continue;
        EXPECT_FLOAT_EQ(figure->GetPosition()->x, -12.25f + 3.5f * static_cast<float>(figure->GetColumn()));
        EXPECT_FLOAT_EQ(figure->GetPosition()->y, 0.0f);
        EXPECT_FLOAT_EQ(figure->GetPosition()->z, 12.25f - 3.5f * static_cast<float>(figure->GetRow()));
        EXPECT_EQ(game->figures[figure->GetColumn() + figure->GetRow() * 8], figure);
    }
    EXPECT_FLOAT_EQ(FigureAt("a1")->GetPosition()->x, -12.25f);
    EXPECT_FLOAT_EQ(FigureAt("a1")->GetPosition()->z, 12.25f);
}

TEST_F(Chess3DSetUp, GivesEveryKindItsClass) {
    Start();
    for (const char row : {'1', '8'}) {
        const auto at = [&](char column) { return FigureAt({column, row}); };
        EXPECT_NE(dynamic_cast<Rook3D*>(at('a')), nullptr);
        EXPECT_NE(dynamic_cast<Knight3D*>(at('b')), nullptr);
        EXPECT_NE(dynamic_cast<Bishop3D*>(at('c')), nullptr);
        EXPECT_NE(dynamic_cast<Queen3D*>(at('d')), nullptr);
        EXPECT_NE(dynamic_cast<King3D*>(at('e')), nullptr);
    }
    EXPECT_NE(dynamic_cast<Pawn3D*>(FigureAt("h2")), nullptr);
    EXPECT_NE(dynamic_cast<Pawn3D*>(FigureAt("h7")), nullptr);
    EXPECT_EQ(FigureAt("h2")->GetPlayer(), Player::White);
    EXPECT_EQ(FigureAt("h7")->GetPlayer(), Player::Black);
    EXPECT_NE(FigureAt("h7")->GetShader(), nullptr);
    EXPECT_EQ(FigureAt("h7")->GetShader(), FigureAt("a1")->GetShader());
}

TEST_F(Chess3DSetUp, LeavesEmptyFieldsEmpty) {
    Start("4k3/8/8/8/8/8/8/R3K3");
    EXPECT_EQ(engine.GetRenderer().GetSceneList().size(), 6u);
    EXPECT_EQ(FigureAt("b1"), nullptr);
    EXPECT_EQ(FigureAt("h8"), nullptr);
    EXPECT_EQ(ScenePlacement(), "4k3/8/8/8/8/8/8/R3K3");
}

TEST_F(Chess3DSetUp, PlacesTheScoreBoardsOnEitherSide) {
    Start();
    EXPECT_FLOAT_EQ(game->leftScoreBoard->GetPosition()->x, -27.0f);
    EXPECT_FLOAT_EQ(game->leftScoreBoard->GetPosition()->y, 5.0f);
    EXPECT_FLOAT_EQ(game->leftScoreBoard->GetPosition()->z, 0.0f);
    EXPECT_FLOAT_EQ(game->rightScoreBoard->GetPosition()->x, 27.0f);
    EXPECT_FLOAT_EQ(game->rightScoreBoard->GetPosition()->y, 5.0f);
}

TEST_F(Chess3DSetUp, HasSixCansAndOneSaucerForTheQueens) {
    Start();
    EXPECT_EQ(std::set<MD2_Instance*>(game->canModels.begin(), game->canModels.end()).size(), 6u);
    const auto* const white = dynamic_cast<Queen3D*>(FigureAt("d1"));
    const auto* const black = dynamic_cast<Queen3D*>(FigureAt("d8"));
    ASSERT_TRUE(white != nullptr && black != nullptr);
    constexpr std::array pictures{"models/can/coke.tga",        "models/can/cokeVanilla.tga",
                                  "models/can/fanta.tga",       "models/can/sprite.tga",
                                  "models/can/bitterLemon.tga", "models/can/tonicWater.tga"};
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        const std::unique_ptr<MD2_Instance> can(engine.GetModels()->CreateInstance(
            "models/can/can.md2", pictures[i], "models/can/normal.tga", 0.12f));
        EXPECT_EQ(game->canModels[i]->GetMaterial()->GetTextureId(), can->GetMaterial()->GetTextureId())
            << pictures[i];
        EXPECT_EQ(game->canModels[i]->GetVertexArray(), can->GetVertexArray());
    }
    EXPECT_EQ(white->cans, game->canModels);
    EXPECT_EQ(black->cans, game->canModels);
    EXPECT_EQ(white->ufo, game->ufoModel);
    EXPECT_EQ(black->ufo, game->ufoModel);
}

TEST_F(Chess3DSetUp, KnowsTheFilesOfEveryFigure) {
    struct Row {
        const char* model;
        const char* diffuse;
        const char* normal;
        float scale;
    };
    constexpr std::array<Row, 12> rows{{
        {"models/chess3D/pawn/pawn.md2", "models/chess3D/pawn/white.tga", "models/chess3D/pawn/normal.tga",
         0.27f},
        {"models/chess3D/rook/rook.md2", "models/chess3D/rook/white.tga", "models/chess3D/rook/normal.tga",
         0.45f},
        {"models/chess3d/knight/knight.md2", "models/chess3d/knight/white.tga",
         "models/chess3d/knight/normal.tga", 0.6f},
        {"models/chess3d/bishop/bishop.md2", "models/chess3d/bishop/white.tga",
         "models/chess3d/bishop/normal.tga", 0.35f},
        {"models/chess3d/queen/queen.md2", "models/chess3d/queen/white.tga",
         "models/chess3d/queen/normal.tga", 2.6f},
        {"models/chess3d/king/king.md2", "models/chess3d/king/white.tga", "models/chess3d/king/normal.tga",
         0.48f},
        {"models/chess3D/pawn/pawn.md2", "models/chess3d/pawn/black.tga", "models/chess3d/pawn/normal.tga",
         0.27f},
        {"models/chess3D/rook/rook.md2", "models/chess3D/rook/black.tga", "models/chess3D/rook/normal.tga",
         0.45f},
        {"models/chess3D/knight/knight.md2", "models/chess3D/knight/black.tga",
         "models/chess3D/knight/normal.tga", 0.6f},
        {"models/chess3D/bishop/bishop.md2", "models/chess3D/bishop/black.tga",
         "models/chess3D/bishop/normal.tga", 0.35f},
        {"models/chess3D/queen/queen.md2", "models/chess3D/queen/black.tga",
         "models/chess3D/queen/normal.tga", 2.6f},
        {"models/chess3D/king/king.md2", "models/chess3D/king/black.tga", "models/chess3D/king/normal.tga",
         0.48f},
    }};
    Start("4k3/8/8/8/8/8/8/4K3");
    for (std::size_t code = 0; code < rows.size(); ++code) {
        const FigureAsset& asset = game->figureAssets[code];
        EXPECT_EQ(asset.modelPath, rows[code].model) << code;
        EXPECT_EQ(asset.diffusePath, rows[code].diffuse) << code;
        EXPECT_EQ(asset.normalPath, rows[code].normal) << code;
        EXPECT_FLOAT_EQ(asset.scale, rows[code].scale) << code;
    }
}

TEST_F(Chess3DSetUp, KeepsItsBoxesHiddenOrOffTheScreen) {
    const std::size_t before = engine.GetRenderer().GetOverlayList().size();
    Start("4k3/8/8/8/8/8/8/4K3");
    const std::vector<DrawAble*>& overlays = engine.GetRenderer().GetOverlayList();
    ASSERT_EQ(overlays.size(), before + 2);
    EXPECT_EQ(overlays[before], game->promotionPrompt.get());
    EXPECT_EQ(overlays[before + 1], game->quitBox.get());

    EXPECT_FALSE(game->promotionPrompt->IsVisible());
    EXPECT_EQ(game->promotionPrompt->GetText(), "Select a Figure:\n1: Queen\n2: Rook\n3: Knight\n4: Bishop");
    EXPECT_FALSE(game->quitBox->IsVisible());
    EXPECT_EQ(game->quitBox->GetText(), "Press Q to quit");
    EXPECT_TRUE(game->nextPlayerBox->IsVisible());
    EXPECT_EQ(game->nextPlayerBox->GetText(), "Next: White");
    EXPECT_FALSE(game->spareBox->IsVisible());
    EXPECT_EQ(game->spareBox->GetText(), "");
}

// Where a box has its plate, and that its text is green, as pixels of the window.
TEST_F(Chess3DSetUp, LaysThePromptOutInThePixelsOfTheWindow) {
    Start("4k3/8/8/8/8/8/8/4K3");
    glViewport(0, 0, GlWindow::width, GlWindow::height);
    glClearColor(0.0f, 0.0f, 0.0f, 0.0f);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    game->promotionPrompt->SetVisible(true);
    game->promotionPrompt->Draw(renderImmediate, false, false, true, nullptr, nullptr);

    const Picture picture = ReadPicture();
    const auto blueAt = [&](int x, int y) { return picture.Blue(x, GlWindow::height - 1 - y); };
    EXPECT_NEAR(blueAt(582, 22), 51, 2);  // 0.5 at an alpha of 0.4
    EXPECT_NEAR(blueAt(777, 167), 51, 2);
    EXPECT_EQ(blueAt(577, 22), 0);
    EXPECT_EQ(blueAt(783, 22), 0);
    EXPECT_EQ(blueAt(582, 173), 0);
    int greenest = 0;
    for (int y = 28; y < 48; ++y)
        for (int x = 588; x < 720; ++x)
            greenest = std::max(greenest, picture.Green(x, GlWindow::height - 1 - y));
    EXPECT_NEAR(greenest, 204, 2);
}

TEST_F(Chess3DSetUp, LoadsItsCues) {
    Start("4k3/8/8/8/8/8/8/4K3");
    EXPECT_THAT(game->errorSounds, ElementsAre("media/error0.wav", "media/error1.wav", "media/error2.wav"));
    EXPECT_THAT(game->checkSounds, ElementsAre("media/check0.wav", "media/check1.wav"));
    EXPECT_THAT(game->mateSounds, ElementsAre("media/checkMate0.wav"));
    for (const char* const path :
         {"media/beep1.wav", "media/beep3.wav", "media/error0.wav", "media/error1.wav", "media/error2.wav",
          "media/check0.wav", "media/check1.wav", "media/checkMate0.wav"}) {
        EXPECT_THAT(FilesOfSetUp(), Contains(path));
        EXPECT_NE(engine.GetSounds()->LoadSample(path), nullptr) << path;
    }
}

TEST_F(Chess3DSetUp, StartsTheMusicBeforeTheFirstFrame) {
    Mix_HaltMusic();
    Start("4k3/8/8/8/8/8/8/4K3");
    EXPECT_TRUE(Mix_PlayingMusic());
    EXPECT_THAT(OpenedMusic(), ElementsAre("media/music0.ogg"));
}

TEST_F(Chess3DSetUp, ReportsItsProgressOnTheConsole) {
    const std::string console = PrintedBy([this] { Start("4k3/8/8/8/8/8/8/4K3"); });
    EXPECT_THAT(console, AllOf(StartsWith("Chess3D - initializing ...\ninitializing board\n"),
                               HasSubstr("initializing board - finished\n"),
                               EndsWith("Chess3D - initializing finished\n")));
}

TEST_F(Chess3DSetUp, ChecksThePlaceOfAFigureThatIsAskedFor) {
    struct Row {
        int column;
        int row;
        const char* printed;
    };
    Start("4k3/8/8/8/8/8/8/4K3");
    for (const Row& row : {Row{-1, 0, "pos_X = -1, 0\n"}, Row{0, -1, "pos_X = 0, -1\n"},
                           Row{9, 0, "pos_X = 9, 0\n"}, Row{3, 9, "pos_X = 3, 9\n"}}) {
        const std::string printed = PrintedBy([&] {
            try {
                game->GetFigure3D(row.column, row.row);
                ADD_FAILURE() << row.printed;
            } catch (const InvalidParameterException& e) {
                EXPECT_EQ(e.GetMessage(), "Coordinate(s) are out of bound!");
            }
        });
        EXPECT_EQ(printed, row.printed);
    }
    // A column of 8 still counts as inside, and reads on into the next row.
    EXPECT_EQ(game->GetFigure3D(8, 0), game->GetFigure3D(0, 1));
    EXPECT_THROW(game->GetFigure3D(8, 8), std::out_of_range);
}

TEST_F(Chess3DSetUp, StoresAFigureWhereItIsTold) {
    Start("4k3/8/8/8/8/8/8/4K3");
    game->SetFigure3D(3, 4, FigureAt("e1"));
    EXPECT_EQ(FigureAt("d5"), FigureAt("e1"));
    game->SetFigure3D(3, 4, nullptr);
    EXPECT_EQ(FigureAt("d5"), nullptr);
}

// A driver without off-screen pictures: the flag is GLEW's own.
class WithoutFramebuffers : public GameTest {
protected:
    WithoutFramebuffers() { __GLEW_EXT_framebuffer_object = GL_FALSE; }
    ~WithoutFramebuffers() override { __GLEW_EXT_framebuffer_object = GL_TRUE; }
};

TEST_F(WithoutFramebuffers, PlaysOnWithoutScoreBoards) {
    const std::string console = PrintedBy([this] { Start("4k3/8/8/8/8/8/4P3/4K2R"); });
    EXPECT_THAT(console, HasSubstr("No score boards: the graphics driver lacks GL_EXT_framebuffer_object\n"));
    EXPECT_EQ(game->leftScoreBoard, nullptr);
    EXPECT_EQ(game->rightScoreBoard, nullptr);
    EXPECT_EQ(engine.GetRenderer().GetSceneList().size(), 5u);

    Play("h1", "h8");
    EXPECT_EQ(game->checkedPlayer, Player::Black);
    EXPECT_EQ(ScenePlacement(), "4k2R/8/8/8/8/8/4P3/4K3");
    EXPECT_EQ(game->currentPlayer, Player::Black);
    EXPECT_EQ(Picking(), "mouse on, grid visible");
}

}  // namespace
}  // namespace tolvane::test
