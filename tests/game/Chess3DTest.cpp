#include "game/Chess3D.h"

#include <array>

#include "actions/Action.h"
#include "assets/Gl.h"
#include "figures/Bishop3D.h"
#include "figures/King3D.h"
#include "figures/Knight3D.h"
#include "figures/Queen3D.h"
#include "figures/Rook3D.h"
#include "game/GameTest.h"
#include "rules/InvalidMoveException.h"
#include "support/GlWindow.h"

namespace tolvane::test {
namespace {

using ::testing::AnyOf;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::IsEmpty;
using ::testing::StartsWith;

constexpr const char* nobodyInCheck =
    "Player is CHECK: 2\nPlayer is CHECK-MATE: 2\n**********************************\n\n";

PlayedSound Cue(const std::string& path) {
    return {.path = path, .volume = 128, .loops = 0};
}

using Chess3DTest = GameTest;

TEST_F(Chess3DTest, PlaysAMoveInTwoClicks) {
    Start();
    Click("e2");
    EXPECT_EQ(Marked(1), "e2");
    EXPECT_EQ(Marked(2), "e3 e4");

    Click("e4");
    EXPECT_EQ(Picking(), "mouse off, grid hidden");
    EXPECT_TRUE(FigureAt("e2")->IsFinished());

    PlayOut();
    EXPECT_EQ(ScenePlacement(), "rnbqkbnr/pppppppp/8/8/4P3/8/PPPP1PPP/RNBQKBNR");
    EXPECT_EQ(RulesPlacement(), ScenePlacement());
    EXPECT_EQ(Picking(), "mouse on, grid visible");
    EXPECT_EQ(game->currentPlayer, Player::Black);
    EXPECT_EQ(TurnText(), "Next: Black");
    EXPECT_EQ(CheckText(), "");
    EXPECT_EQ(Marked(1) + Marked(2) + Marked(3), "");

    Play("e7", "e5");
    EXPECT_EQ(game->currentPlayer, Player::White);
    EXPECT_EQ(TurnText(), "Next: White");
}

// A figure to be picked

TEST_F(Chess3DTest, IgnoresEmptyFieldsAndTheOtherSide) {
    Start();
    for (const char* const field : {"e4", "e7", "a8"}) {
        Click(field);
        EXPECT_EQ(game->selectedField, nullptr) << field;
    }
    ClickFigure("d8");
    EXPECT_EQ(game->selectedField, nullptr);
    EXPECT_THAT(TakeSounds(), IsEmpty());
    EXPECT_EQ(Marked(0).size(), 64u * 3 - 1);
    EXPECT_EQ(Picking(), "mouse on, grid visible");
}

TEST_F(Chess3DTest, AnyClickEndsTheOfferOfADemo) {
    Start();
    EXPECT_TRUE(game->demoAllowed);
    Click("e5");
    EXPECT_FALSE(game->demoAllowed);
}

TEST_F(Chess3DTest, AnswersAPickWithTheFiguresVoice) {
    Start();
    Click("a2");
    EXPECT_THAT(TakeSounds(),
                ElementsAre(AnyOf(Cue("media/pawnSelected0.wav"), Cue("media/pawnSelected1.wav"))));
    Click("a4");
    EXPECT_THAT(TakeSounds(), ElementsAre(AnyOf(Cue("media/pawnAck0.wav"), Cue("media/pawnAck1.wav"))));
}

// A figure without a voice of its own.
class MuteFigure final : public ChessFigure3D {
public:
    MuteFigure(int atColumn, int atRow, Engine3D& frame, MD2_Instance* model)
        : ChessFigure3D(atColumn, atRow, Player::White, FigureType::Pawn, model, nullptr, frame.GetSounds()) {
    }
    void Draw(int, bool, bool, bool, const Vertex*, const Vertex*) override {}
};

TEST_F(Chess3DTest, BeepsForAFigureWithoutAVoice) {
    Start();
    const FigureAsset& pawn = game->figureAssets[0];
    const std::unique_ptr<MD2_Instance> instance(
        engine.GetModels()->CreateInstance(pawn.modelPath, pawn.diffusePath, pawn.normalPath, pawn.scale));
    MuteFigure figure(0, 1, engine, instance.get());
    game->SetFigure3D(0, 1, &figure);

    Click("a2");
    EXPECT_THAT(TakeSounds(), ElementsAre(PlayedSound{.path = "media/beep3.wav", .volume = 50, .loops = 0}));
    Click("a3");
    EXPECT_THAT(TakeSounds(), ElementsAre(PlayedSound{.path = "media/beep1.wav", .volume = 50, .loops = 0}));
    EXPECT_TRUE(figure.IsFinished());
    game->SetFigure3D(0, 1, nullptr);
}

// A target to be picked

TEST_F(Chess3DTest, DropsTheFigureThatIsClickedAgain) {
    Start();
    for (const bool onFigure : {false, true}) {
        Click("g1");
        EXPECT_EQ(Marked(2), "f3 h3");
        if (onFigure)
            ClickFigure("g1");
        else
            Click("g1");
        EXPECT_EQ(game->selectedField, nullptr);
        EXPECT_EQ(game->reachableFields, nullptr);
        EXPECT_EQ(Marked(1) + Marked(2), "");
    }
}

TEST_F(Chess3DTest, ChangesToAnotherOwnFigure) {
    Start();
    Click("g1");
    TakeSounds();
    ClickFigure("d2");
    EXPECT_EQ(Marked(1), "d2");
    EXPECT_EQ(Marked(2), "d3 d4");
    EXPECT_EQ(TakeSounds().size(), 1u);
    Click("b1");
    EXPECT_EQ(Marked(1), "b1");
    EXPECT_EQ(Marked(2), "a3 c3");
}

TEST_F(Chess3DTest, KeepsTheFigureWhenAFieldIsOutOfReach) {
    Start();
    Click("g1");
    for (const char* const field : {"g4", "g7", "e5"}) {
        Click(field);
        EXPECT_EQ(Marked(1), "g1") << field;
        EXPECT_EQ(Marked(2), "f3 h3") << field;
        EXPECT_FALSE(AnyoneBusy()) << field;
    }
}

TEST_F(Chess3DTest, KeepsAFigureThatCannotMove) {
    Start();
    Click("e1");
    EXPECT_EQ(Marked(1), "e1");
    EXPECT_EQ(Marked(2), "");
    Click("e4");
    EXPECT_EQ(Marked(1), "e1");

    game->reachableFields.reset();  // no list at all counts as an empty one
    Click("e4");
    EXPECT_EQ(Marked(1), "e1");
    Click("e1");
    EXPECT_EQ(Marked(1), "");
}

// A move on its way

TEST_F(Chess3DTest, MarksTheTargetAloneWhileTheFigureIsOnItsWay) {
    Start();
    Click("b1");
    const std::string console = Console([this] { Click("c3"); });
    EXPECT_EQ(console, nobodyInCheck);
    EXPECT_EQ(Marked(1), "b1");
    EXPECT_EQ(Marked(2), "");
    EXPECT_EQ(Marked(3), "c3");
    EXPECT_EQ(RulesPlacement(), "rnbqkbnr/pppppppp/8/8/8/2N5/PPPPPPPP/R1BQKBNR");
    EXPECT_EQ(ScenePlacement(), startPlacement);
    EXPECT_EQ(TurnText(), "Next: White");

    PlayOut();
    EXPECT_EQ(ScenePlacement(), RulesPlacement());
    EXPECT_EQ(Marked(1) + Marked(2) + Marked(3), "");
}

TEST_F(Chess3DTest, LetsNoClickThroughWhileAFigureIsOnItsWay) {
    Start();
    Click("e2");
    Click("e4");
    for (int y = 0; y < 768; y += 96)
        engine.GetInput().OnMouseUp(512, y);
    EXPECT_EQ(Marked(1), "e2");
    EXPECT_EQ(Marked(3), "e4");
    EXPECT_EQ(TakeSounds().size(), 2u);  // the voices of pick and move
}

TEST_F(Chess3DTest, PlaysACaptureFromClickToRest) {
    Start("4k3/p7/8/8/8/8/8/R3K3");
    ChessFigure3D* const rook = FigureAt("a1");
    ChessFigure3D* const pawn = FigureAt("a7");
    ClickFigure("a1");
    EXPECT_EQ(Marked(2), "b1 c1 d1 a2 a3 a4 a5 a6 a7");

    ClickFigure("a7");
    ASSERT_NE(game->capturedField, nullptr);
    EXPECT_EQ(game->capturedField->Compare({0, 6}), 0);
    EXPECT_TRUE(rook->IsFinished());
    EXPECT_FALSE(pawn->IsFinished());
    EXPECT_EQ(RulesPlacement(), "4k3/R7/8/8/8/8/8/4K3");
    EXPECT_EQ(ScenePlacement(), "4k3/p7/8/8/8/8/8/R3K3");

    EXPECT_GT(PlayOut(), 10.0f);
    EXPECT_EQ(ScenePlacement(), "4k3/R7/8/8/8/8/8/4K3");
    EXPECT_EQ(FigureAt("a7"), rook);
    EXPECT_EQ(rook->GetColumn(), 0u);
    EXPECT_EQ(rook->GetRow(), 6u);
    EXPECT_FALSE(pawn->active);
    EXPECT_EQ(game->capturedField, nullptr);
    EXPECT_EQ(TurnText(), "Next: Black");
    EXPECT_EQ(Picking(), "mouse on, grid visible");
}

TEST_F(Chess3DTest, TakesTheVictimOffTheSceneBehindTheFrame) {
    Start("4k3/p7/8/8/8/8/8/R3K3");
    ChessFigure3D* const pawn = FigureAt("a7");
    Play("a1", "a7");
    EXPECT_TRUE(InScene(pawn));
    Render();
    EXPECT_FALSE(InScene(pawn));
    EXPECT_TRUE(InScene(FigureAt("a7")));
}

// A script that goes on until it is told to end.
class Errand final : public Action {
public:
    explicit Errand(const bool* toEnd) : end(toEnd) {}
    bool Step(float, const Vertex*) override { return *end; }

private:
    const bool* end;
};

TEST_F(Chess3DTest, GivesTheMouseBackOnlyWhenAllHaveComeToRest) {
    Start();
    bool end = false;
    FigureAt("h8")->SetAction(new Errand(&end));
    Click("e2");
    Click("e4");
    PlayOut([this] { return FigureAt("e4") != nullptr; });

    EXPECT_EQ(game->currentPlayer, Player::Black);
    EXPECT_EQ(TurnText(), "Next: Black");
    EXPECT_EQ(Picking(), "mouse off, grid hidden");
    Frame(0.1f);
    EXPECT_EQ(Picking(), "mouse off, grid hidden");

    end = true;
    Frame(0.1f);
    EXPECT_EQ(Picking(), "mouse on, grid visible");
    EXPECT_EQ(game->currentPlayer, Player::Black);
}

// Refusals

TEST_F(Chess3DTest, RefusesAMoveThatLeavesTheOwnKingInCheck) {
    Start("k3r3/8/8/8/8/8/4R3/4K3");
    Click("e2");
    TakeSounds();
    const std::string console = Console([this] { Click("a2"); });
    EXPECT_THAT(console, StartsWith("++++ CHESSGAME ERRORHANDLING ++++\n"));
    EXPECT_THAT(console, EndsWith("The King is Check! MAIN\n"));
    EXPECT_THAT(TakeSounds(), ElementsAre(AnyOf(Cue("media/error0.wav"), Cue("media/error1.wav"),
                                                Cue("media/error2.wav"))));
    EXPECT_EQ(Marked(1) + Marked(2) + Marked(3), "");
    EXPECT_EQ(Picking(), "mouse on, grid visible");
    EXPECT_FALSE(AnyoneBusy());
    EXPECT_EQ(game->currentPlayer, Player::White);
    EXPECT_EQ(ScenePlacement(), "k3r3/8/8/8/8/8/4R3/4K3");
    EXPECT_EQ(RulesPlacement(), ScenePlacement());
    EXPECT_EQ(game->selectedField, nullptr);

    Play("e2", "e8");  // the same player may try again
    EXPECT_EQ(ScenePlacement(), "k3R3/8/8/8/8/8/8/4K3");
}

TEST_F(Chess3DTest, StaysSilentAboutARefusalWithoutCues) {
    Start("k3r3/8/8/8/8/8/4R3/4K3");
    game->errorSounds.clear();
    Click("e2");
    TakeSounds();
    Console([this] { Click("a2"); });
    EXPECT_THAT(TakeSounds(), IsEmpty());
}

// Special moves

TEST_F(Chess3DTest, CastlesWithTheRookAheadInTheTable) {
    struct Row {
        const char* king;
        const char* target;
        const char* rook;
        const char* rookTarget;
        Player player;
    };
    for (const Row& row :
         {Row{"e1", "g1", "h1", "f1", Player::White}, Row{"e1", "c1", "a1", "d1", Player::White},
          Row{"e8", "g8", "h8", "f8", Player::Black}, Row{"e8", "c8", "a8", "d8", Player::Black}}) {
        SCOPED_TRACE(row.target);
        Start("r3k2r/p6p/8/8/8/8/P6P/R3K2R", row.player);
        ChessFigure3D* const king = FigureAt(row.king);
        ChessFigure3D* const rook = FigureAt(row.rook);
        Click(row.king);
        Click(row.target);
        EXPECT_EQ(FigureAt(row.rookTarget), rook);
        EXPECT_EQ(FigureAt(row.rook), nullptr);
        EXPECT_EQ(FigureAt(row.king), king);
        EXPECT_EQ(FigureAt(row.target), nullptr);

        PlayOut();
        EXPECT_EQ(FigureAt(row.target), king);
        EXPECT_EQ(FigureAt(row.king), nullptr);
        EXPECT_EQ(FigureAt(row.rookTarget), rook);
        EXPECT_EQ(ScenePlacement(), RulesPlacement());
        EXPECT_EQ(rook->GetColumn(), static_cast<unsigned int>(row.rookTarget[0] - 'a'));
        EXPECT_EQ(rook->GetRow(), king->GetRow());
        EXPECT_EQ(Picking(), "mouse on, grid visible");
    }
}

class EnPassant : public GameTest {
protected:
    void SetUp() override {
        Start("4k3/3p4/8/4P3/8/8/8/4K3", Player::Black);
        Play("d7", "d5");
        victim = FigureAt("d5");
        Click("e5");
        reachable = Marked(2);
        Click("d6");
        capturedField = *game->capturedField;
        PlayOut();
    }

    ChessFigure3D* victim = nullptr;
    std::string reachable;
    Coordinate capturedField;
};

TEST_F(EnPassant, TakesThePawnBesideTheTarget) {
    EXPECT_EQ(reachable, "d6 e6");
    EXPECT_EQ(capturedField.Compare({3, 4}), 0);
    EXPECT_EQ(RulesPlacement(), "4k3/8/3P4/8/8/8/8/4K3");
    EXPECT_EQ(FigureAt("d6")->GetPlayer(), Player::White);
    EXPECT_EQ(FigureAt("e5"), nullptr);
    EXPECT_EQ(game->currentPlayer, Player::Black);
    EXPECT_FALSE(victim->active);
}

TEST_F(EnPassant, LeavesTheVictimInTheTable) {
    EXPECT_EQ(FigureAt("d5"), victim);
    EXPECT_EQ(ScenePlacement(), "4k3/8/3P4/3p4/8/8/8/4K3");
    EXPECT_THROW(
        {
            try {
                Click("d5");
            } catch (const InvalidMoveException& e) {
                EXPECT_EQ(e.GetMessage(), "There is no figure positioned on source-coordinate");
                throw;
            }
        },
        InvalidMoveException);
}

TEST_F(EnPassant, KeepsTheVictimForItsOwnerAlone) {
    Play("e8", "d7");
    Click("d5");  // the ghost is Black's, so White's click is that on an enemy
    EXPECT_EQ(game->selectedField, nullptr);
    Play("e1", "e2");
    Click("d7");
    EXPECT_EQ(Marked(1), "d7");
    EXPECT_THROW(Click("d5"), InvalidMoveException);  // changing over to the ghost ends alike
}

TEST_F(EnPassant, TakesTheVictimOffTheSceneBehindTheFrame) {
    EXPECT_TRUE(InScene(victim));
    Render();
    EXPECT_FALSE(InScene(victim));
}

TEST_F(Chess3DTest, MovesWithoutAFightWhereARefusedEnPassantHasLeftNoVictim) {
    struct Row {
        const char* who;
        std::vector<std::array<const char*, 2>> moves;
        const char* placement;
    };
    for (const Row& row : {Row{"the rook that stands on the victim's old field",
                               {{"d1", "d5"}, {"g8", "g7"}, {"d5", "d6"}},
                               "4r3/6k1/3R4/4P3/8/8/8/4K3"},
                           Row{"the rook that comes when the field is empty",
                               {{"d1", "d5"},
                                {"g8", "g7"},
                                {"d5", "h5"},
                                {"g7", "g8"},
                                {"h5", "h6"},
                                {"g8", "g7"},
                                {"h6", "d6"}},
                               "4r3/6k1/3R4/4P3/8/8/8/4K3"}}) {
        SCOPED_TRACE(row.who);
        Start("4r1k1/3p4/8/4P3/8/8/8/3RK3", Player::Black);
        Play("d7", "d5");
        Click("e5");
        Click("d6");  // bares the king
        EXPECT_EQ(game->currentPlayer, Player::White);
        for (const auto& [from, to] : row.moves)
            Play(from, to);
        EXPECT_EQ(RulesPlacement(), row.placement);
        EXPECT_EQ(ScenePlacement(), row.placement);
    }
}

// Check and mate

TEST_F(Chess3DTest, TellsACheckUntilItIsAnswered) {
    struct Row {
        const char* placement;
        Player player;
        std::array<const char*, 2> check;
        const char* number;
        const char* text;
        std::array<const char*, 2> answer;
    };
    for (const Row& row :
         {Row{"4k3/8/8/8/8/8/8/R3K3", Player::White, {"a1", "a8"}, "1", "Black is CHECK!", {"e8", "e7"}},
          Row{"r3k3/8/8/8/8/8/8/4K3", Player::Black, {"a8", "a1"}, "0", "White is CHECK!", {"e1", "e2"}}}) {
        SCOPED_TRACE(row.text);
        Start(row.placement, row.player);
        Click(row.check[0]);
        const std::string console = Console([&] { Click(row.check[1]); });
        EXPECT_EQ(console, std::string("Player is CHECK: ") + row.number +
                               "\nPlayer is CHECK-MATE: 2\n**********************************\n\n");
        EXPECT_EQ(CheckText(), "");
        TakeSounds();
        PlayOut();
        for (int frame = 0; frame < 100; ++frame)
            Frame(0.5f);
        EXPECT_EQ(CheckText(), row.text);
        EXPECT_THAT(TakeSounds().back(), AnyOf(Cue("media/check0.wav"), Cue("media/check1.wav")));
        EXPECT_EQ(Picking(), "mouse on, grid visible");

        Click(row.answer[0]);
        Click(row.answer[1]);
        EXPECT_EQ(CheckText(), row.text);
        PlayOut();
        EXPECT_EQ(CheckText(), "");
    }
}

TEST_F(Chess3DTest, LetsFiguresAndFieldsAloneBePicked) {
    Start("4k3/8/8/8/8/8/8/R3K3");
    game->promotionPrompt->SetVisible(true);
    for (DrawAble* const drawable : std::initializer_list<DrawAble*>{
             game->leftScoreBoard.get(), game->rightScoreBoard.get(), game->promotionPrompt.get(),
             engine.GetRenderer().GetSceneList()[0]})
        EXPECT_EQ(PickableParts(*drawable), 0);
    EXPECT_EQ(PickableParts(*game->selectionGrid), 64);
    EXPECT_EQ(PickableParts(*FigureAt("a1")), 1);
}

// What a score board shows, seen from the front.
Picture Screen(ScoreBoard& board) {
    constexpr Vertex front{-27.0f, 5.0f, 30.0f};
    glViewport(0, 0, GlWindow::width, GlWindow::height);
    glClearColor(0.0f, 0.0f, 0.0f, 0.0f);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    glMatrixMode(GL_PROJECTION);
    glPushMatrix();
    glLoadIdentity();
    glOrtho(-31.0, -23.0, 1.0, 9.0, -50.0, 50.0);
    glMatrixMode(GL_MODELVIEW);
    glPushMatrix();
    glLoadIdentity();
    board.Draw(renderImmediate, false, false, true, &front, &front);
    glPopMatrix();
    glMatrixMode(GL_PROJECTION);
    glPopMatrix();
    glMatrixMode(GL_MODELVIEW);
    return ReadPicture();
}

// Where the first column of new red lies, in the units of the screen's texts, which are 256 to its width; -1
// where there is none. The flames burn below the picture.
int NewRedAt(const Picture& before, const Picture& after) {
    for (int x = 0; x < after.width; ++x)
        for (int y = 0; y < after.height; ++y)
            if (after.Red(x, y) - before.Red(x, y) > 60)
                return x * 256 / after.width;
    return -1;
}

TEST_F(Chess3DTest, RendersTheScreensAnew) {
    Start("4k3/8/8/8/8/8/8/R3K3");
    const Picture calm = Screen(*game->leftScoreBoard);
    Play("a1", "a8");
    EXPECT_NEAR(NewRedAt(calm, Screen(*game->leftScoreBoard)), 60, 3);
    Play("e8", "e7");
    EXPECT_EQ(NewRedAt(calm, Screen(*game->leftScoreBoard)), -1);
}

TEST_F(Chess3DTest, RendersAMateFurtherToTheLeft) {
    Start("7k/6pp/8/8/8/8/8/R3K3");
    const Picture calm = Screen(*game->leftScoreBoard);
    Play("a1", "a8");
    EXPECT_NEAR(NewRedAt(calm, Screen(*game->leftScoreBoard)), 25, 3);
}

TEST_F(Chess3DTest, EndsWithTheMatedKing) {
    Start();
    Play("f2", "f3");
    Play("e7", "e5");
    Play("g2", "g4");
    Click("d8");
    const std::string console = Console([this] { Click("h4"); });
    EXPECT_EQ(console, "Player is CHECK: 0\nPlayer is CHECK-MATE: 0\n**********************************\n\n");
    TakeSounds();
    ChessFigure3D* const king = FigureAt("e1");
    PlayOut([king] { return king->IsFinished(); });

    EXPECT_EQ(CheckText(), "White is CHECK-MATE!");
    EXPECT_THAT(TakeSounds(), ElementsAre(testing::_, Cue("media/checkMate0.wav")));
    EXPECT_EQ(Picking(), "mouse off, grid hidden");

    for (int frame = 0; frame < 200; ++frame)
        Frame(0.1f);
    EXPECT_FALSE(king->active);
    EXPECT_TRUE(king->IsFinished());
    for (const SDLKey key : {SDLK_1, SDLK_2, SDLK_3, SDLK_4, SDLK_SPACE})
        Press(key);
    engine.GetInput().OnMouseUp(512, 384);
    EXPECT_EQ(Picking(), "mouse off, grid hidden");
    EXPECT_EQ(CheckText(), "White is CHECK-MATE!");
    EXPECT_EQ(game->selectedField, nullptr);
    EXPECT_FALSE(game->demoRunning);
}

TEST_F(Chess3DTest, MatesBlackToo) {
    Start("7k/6pp/8/8/8/8/8/R3K3");
    Play("a1", "a8");
    EXPECT_EQ(CheckText(), "Black is CHECK-MATE!");
    EXPECT_TRUE(FigureAt("h8")->IsFinished());
}

// Promotion

class Promotion : public GameTest {
protected:
    // Walks a pawn to the last row, up to the prompt.
    void Await(const std::string& placement, const std::string& source, const std::string& target,
               Player player = Player::White) {
        Start(placement, player);
        Play(source, target);
        ASSERT_TRUE(game->promotionPrompt->IsVisible());
    }
};

TEST_F(Promotion, IsChosenByKey) {
    struct Row {
        SDLKey key;
        FigureType type;
        char letter;
    };
    for (const Player player : {Player::White, Player::Black})
        for (const Row& row : {Row{SDLK_1, FigureType::Queen, 'Q'}, Row{SDLK_2, FigureType::Rook, 'R'},
                               Row{SDLK_3, FigureType::Knight, 'N'}, Row{SDLK_4, FigureType::Bishop, 'B'}}) {
            SCOPED_TRACE(row.letter);
            const bool white = player == Player::White;
            const std::string field = white ? "a8" : "a1";
            if (white)
                Await("8/P7/7k/8/8/7K/8/8", "a7", "a8", player);
            else
                Await("8/8/7k/8/8/7K/p7/8", "a2", "a1", player);
            EXPECT_EQ(game->promotionField->Compare({0, white ? 7 : 0}), 0);
            EXPECT_EQ(Picking(), "mouse on, grid visible");
            ChessFigure3D* const pawn = FigureAt(field);

            Press(row.key);
            ChessFigure3D* const figure = FigureAt(field);
            EXPECT_EQ(figure->GetFigureType(), row.type);
            EXPECT_EQ(figure->GetPlayer(), player);
            EXPECT_EQ(figure->GetShader(), pawn->GetShader());
            EXPECT_FLOAT_EQ(figure->GetPosition()->x, -12.25f);
            EXPECT_FLOAT_EQ(figure->GetPosition()->z, white ? -12.25f : 12.25f);
            EXPECT_TRUE(InScene(figure));
            EXPECT_FALSE(game->promotionPrompt->IsVisible());
            EXPECT_EQ(game->promotionField, nullptr);
            EXPECT_EQ(ScenePlacement(), RulesPlacement());
            EXPECT_EQ(game->currentPlayer, white ? Player::Black : Player::White);
            EXPECT_EQ(Picking(), "mouse on, grid visible");
        }
}

TEST_F(Promotion, MakesAFigureThatPlays) {
    Await("8/P7/7k/8/8/7K/8/8", "a7", "a8");
    Press(SDLK_2);
    ASSERT_NE(dynamic_cast<Rook3D*>(FigureAt("a8")), nullptr);
    Play("h6", "h5");
    Play("a8", "a1");
    EXPECT_EQ(ScenePlacement(), "8/8/8/7k/8/7K/8/R7");
}

TEST_F(Promotion, TakesThePawnOffTheSceneBehindTheFrame) {
    Await("8/P7/7k/8/8/7K/8/8", "a7", "a8");
    ChessFigure3D* const pawn = FigureAt("a8");
    Press(SDLK_1);
    EXPECT_TRUE(InScene(pawn));
    Render();
    EXPECT_FALSE(InScene(pawn));
}

TEST_F(Promotion, HoldsTheClicksBackUntilTheChoice) {
    Await("8/P7/7k/8/8/7K/8/8", "a7", "a8");
    game->demoAllowed = true;
    Click("h6");
    EXPECT_EQ(game->selectedField, nullptr);
    EXPECT_TRUE(game->demoAllowed);
    Press(SDLK_1);
    Click("h6");
    EXPECT_EQ(Marked(1), "h6");
}

TEST_F(Promotion, WaitsForThePawnToArrive) {
    Start("8/P7/7k/8/8/7K/8/8");
    Click("a7");
    Click("a8");
    ASSERT_NE(game->promotionField, nullptr);
    Press(SDLK_1);
    EXPECT_EQ(RulesPlacement(), "P7/8/7k/8/8/7K/8/8");
    EXPECT_FALSE(game->promotionPrompt->IsVisible());
    PlayOut();
    EXPECT_TRUE(game->promotionPrompt->IsVisible());
    Press(SDLK_1);
    EXPECT_EQ(RulesPlacement(), "Q7/8/7k/8/8/7K/8/8");
}

TEST_F(Promotion, KeysDoNothingElsewhere) {
    Start();
    const auto pressAll = [this] {
        for (const SDLKey key : {SDLK_1, SDLK_2, SDLK_3, SDLK_4})
            Press(key);
    };
    EXPECT_EQ(Console(pressAll), "");
    Click("e2");
    EXPECT_EQ(Console(pressAll), "");
    EXPECT_EQ(Marked(1), "e2");
    EXPECT_EQ(Marked(2), "e3 e4");
    EXPECT_EQ(ScenePlacement(), startPlacement);
}

TEST_F(Promotion, FollowsTheFightOfACapture) {
    Start("r3k3/1P6/8/8/8/8/8/4K3");
    Click("b7");
    Click("a8");
    EXPECT_NE(game->promotionField, nullptr);
    PlayOut([this] { return !FigureAt("a8")->active; });
    EXPECT_FALSE(game->promotionPrompt->IsVisible());
    PlayOut();
    EXPECT_TRUE(game->promotionPrompt->IsVisible());
    Press(SDLK_1);
    EXPECT_EQ(ScenePlacement(), "Q3k3/8/8/8/8/8/8/4K3");
    EXPECT_EQ(CheckText(), "Black is CHECK!");
}

TEST_F(Promotion, CanGiveCheck) {
    Await("7k/1P6/6p1/8/8/8/8/4K3", "b7", "b8");
    TakeSounds();
    Press(SDLK_1);
    EXPECT_EQ(CheckText(), "Black is CHECK!");
    EXPECT_THAT(TakeSounds(), ElementsAre(AnyOf(Cue("media/check0.wav"), Cue("media/check1.wav"))));
    EXPECT_EQ(Picking(), "mouse on, grid visible");
    EXPECT_FALSE(AnyoneBusy());
    EXPECT_EQ(game->checkedPlayer, Player::NoPlayer);  // that of the pawn's own move
}

TEST_F(Promotion, CanGiveMate) {
    Await("7k/1P4pp/8/8/8/8/8/4K3", "b7", "b8");
    EXPECT_EQ(game->checkedKingField, nullptr);
    TakeSounds();
    Press(SDLK_1);
    EXPECT_EQ(CheckText(), "Black is CHECK-MATE!");
    EXPECT_THAT(TakeSounds(), ElementsAre(Cue("media/checkMate0.wav")));
    EXPECT_TRUE(FigureAt("h8")->IsFinished());
    EXPECT_EQ(Picking(), "mouse off, grid hidden");
    EXPECT_FALSE(game->promotionPrompt->IsVisible());
    EXPECT_EQ(game->promotionField, nullptr);
}

TEST_F(Promotion, CanTurnACheckIntoMate) {
    Await("8/R2P3k/6pp/8/8/8/8/4K3", "d7", "d8");
    EXPECT_EQ(CheckText(), "Black is CHECK!");
    ASSERT_NE(game->checkedKingField, nullptr);
    Press(SDLK_1);
    EXPECT_EQ(CheckText(), "Black is CHECK-MATE!");
    EXPECT_TRUE(FigureAt("h7")->IsFinished());
    EXPECT_EQ(Picking(), "mouse off, grid hidden");
}

TEST_F(Promotion, ComesTooLateForAKingThatIsMatedByThePawnsMove) {
    Await("4R3/R2P3k/6pp/8/8/8/8/4K3", "d7", "d8");
    EXPECT_EQ(CheckText(), "Black is CHECK-MATE!");
    EXPECT_EQ(Picking(), "mouse off, grid hidden");
    Press(SDLK_1);
    EXPECT_EQ(FigureAt("d8")->GetFigureType(), FigureType::Pawn);
}

TEST_F(Promotion, CanBeChosenAgainAfterARefusal) {
    for (const int refused : {0, 5}) {
        Await("8/P7/7k/8/8/7K/8/8", "a7", "a8");
        const std::string console = Console([&] { game->AdvancePawn(refused); });
        EXPECT_THAT(console, StartsWith("++++ CHESSGAME ERRORHANDLING - AdvancePawn ++++\n"));
        EXPECT_THAT(console, EndsWith("A Pawn can only promote to a Queen, Rook, Knight or Bishop!\n"));
        EXPECT_TRUE(game->promotionPrompt->IsVisible());
        EXPECT_NE(game->promotionField, nullptr);
        EXPECT_EQ(FigureAt("a8")->GetFigureType(), FigureType::Pawn);

        Press(SDLK_3);
        EXPECT_NE(dynamic_cast<Knight3D*>(FigureAt("a8")), nullptr);
        EXPECT_EQ(RulesPlacement(), "N7/8/7k/8/8/7K/8/8");
        EXPECT_FALSE(game->promotionPrompt->IsVisible());
    }
}

}  // namespace
}  // namespace tolvane::test
