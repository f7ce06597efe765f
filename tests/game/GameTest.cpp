#include "game/GameTest.h"

#include <SDL.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdlib>
#include <ranges>

#include "assets/Gl.h"
#include "assets/Numbers.h"
#include "frame/FrameClock.h"
#include "rules/ChessBoard.h"
#include "rules/ChessGameFigure.h"
#include "rules/Field.h"
#include "scene/Sun.h"
#include "support/TypedAnswer.h"

namespace tolvane::test {

namespace {

constexpr std::string_view letters = "PRNBQKprnbqk.";  // by ChessGameFigure code
constexpr Vertex eye{0.0f, 20.0f, 25.0f};

Engine3D& TheEngine() {
    static const std::unique_ptr<Engine3D> engine = [] {
        setenv("SDL_AUDIODRIVER", "dummy", 1);
        const TypedAnswer window("\n");
        auto made = std::make_unique<Engine3D>(1024, 768, 32);
        made->GetRenderer().SetView(&made->GetView());
        return made;
    }();
    return *engine;
}

// The engine's overlay list knows the boxes of every game that was set up: so the games stay as long as it.
OpenGame* NextGame() {
    static std::vector<std::unique_ptr<OpenGame>> games;
    return games.emplace_back(std::make_unique<OpenGame>()).get();
}

std::string NameOf(int column, int row) {
    return {static_cast<char>('a' + column), static_cast<char>('1' + row)};
}

int ColumnOf(const std::string& field) {
    return field.at(0) - 'a';
}

int RowOf(const std::string& field) {
    return field.at(1) - '1';
}

std::string Placement(const std::function<char(int, int)>& letterAt) {
    std::string placement;
    for (int row = 7; row >= 0; --row) {
        for (int column = 0; column < 8; ++column) {
            const char letter = letterAt(column, row);
            if (letter != '.')
                placement += letter;
            else if (!placement.empty() && std::isdigit(static_cast<unsigned char>(placement.back())))
                ++placement.back();
            else
                placement += '1';
        }
        if (row > 0)
            placement += '/';
    }
    return placement;
}

char LetterOf(Player player, FigureType type) {
    return letters[static_cast<std::size_t>(type) + (player == Player::Black ? 6 : 0)];
}

// A board with figures of the start position, put elsewhere.
std::unique_ptr<ChessBoard> BoardOf(const std::string& placement) {
    auto board = std::make_unique<ChessBoard>(true);
    std::vector<ChessFigure*> unused;
    for (const Player player : {Player::White, Player::Black})
        unused.insert(unused.end(), board->GetFigures(player)->begin(), board->GetFigures(player)->end());
    for (ChessFigure* const figure : unused)
        board->FieldAt(figure->GetX(), figure->GetY()).SetElement(nullptr);

    int x = 0;
    int y = 7;
    for (const char letter : placement) {
        if (letter == '/') {
            x = 0;
            --y;
        } else if (std::isdigit(static_cast<unsigned char>(letter))) {
            x += letter - '0';
        } else {
            const auto figure = std::ranges::find_if(unused, [&](const ChessFigure* f) {
                return LetterOf(f->GetPlayer(), f->GetType()) == letter;
            });
            (*figure)->SetPosition(x, y);
            board->FieldAt(x, y).SetElement(*figure);
            unused.erase(figure);
            ++x;
        }
    }
    for (ChessFigure* const figure : unused)
        std::erase(*board->GetFigures(figure->GetPlayer()), figure);
    return board;
}

}  // namespace

GameTest::GameTest() : engine(TheEngine()) {
    RestartRandom();
}

void GameTest::Start(const std::string& placement, Player player) {
    game = NextGame();
    game->chessGame = ChessGame(BoardOf(placement));
    game->Initialize(&engine);
    FilesOfSetUp();
    game->currentPlayer = player;
    engine.SetGame(game);
    engine.GetInput() = InputHandler(&engine.GetView(), &engine.GetRenderer(), game);
    engine.GetInput().SetMouseEnabled(true);
    TakeSounds();
}

const std::vector<std::string>& GameTest::FilesOfSetUp() {
    static const std::vector<std::string> files = OpenedFiles();
    return files;
}

void GameTest::Render() {
    Sun sun(game->ufoModel, nullptr);
    engine.GetRenderer().SetLight(&sun);
    engine.GetRenderer().RenderFrame();
    engine.GetRenderer().SetLight(nullptr);
}

void GameTest::Click(const std::string& field) {
    game->OnElementPicked(game->selectionGrid->GetFieldAt(static_cast<unsigned int>(ColumnOf(field)),
                                                          static_cast<unsigned int>(RowOf(field))));
}

void GameTest::ClickFigure(const std::string& field) {
    game->OnElementPicked(FigureAt(field));
}

void GameTest::Press(SDLKey key) {
    SDL_keysym symbol{};
    symbol.sym = key;
    engine.GetInput().OnKeyDown(&symbol);
}

void GameTest::Play(const std::string& source, const std::string& target) {
    Click(source);
    Click(target);
    PlayOut();
}

void GameTest::Frame(float seconds) {
    frameClock.frameTime = seconds;
    engine.GetRenderer().UpdateScene(&eye);
    // Nothing is drawn here, so the figures whose clips a script waits for are moved on by hand.
    for (ChessFigure3D* const figure : game->figures)
        if (figure != nullptr && figure->IsFinished())
            figure->Update(renderImmediate, seconds);
    if (game->capturedField)
        game->GetFigure3D(game->capturedField->GetX(), game->capturedField->GetY())
            ->Update(renderImmediate, seconds);
}

float GameTest::PlayOut(const std::function<bool()>& done) {
    constexpr float step = 0.05f;
    float seconds = 0.0f;
    while (!done() && seconds < 600.0f) {
        Frame(step);
        seconds += step;
    }
    EXPECT_LT(seconds, 600.0f) << "the scene has not ended";
    return seconds;
}

float GameTest::PlayOut() {
    return PlayOut([this] { return !AnyoneBusy(); });
}

ChessFigure3D* GameTest::FigureAt(const std::string& field) {
    return game->GetFigure3D(ColumnOf(field), RowOf(field));
}

std::string GameTest::ScenePlacement() {
    return Placement([this](int column, int row) {
        const ChessFigure3D* const figure = game->GetFigure3D(column, row);
        return figure == nullptr ? '.' : LetterOf(figure->GetPlayer(), figure->GetFigureType());
    });
}

std::string GameTest::RulesPlacement() {
    const ChessBoardView view = game->chessGame.GetBoardView();
    return Placement(
        [&](int column, int row) { return letters[static_cast<std::size_t>(view.FigureAt(column, row))]; });
}

std::string GameTest::Marked(int highlight) {
    std::string names;
    for (int row = 0; row < 8; ++row)
        for (int column = 0; column < 8; ++column)
            if (game->selectionGrid
                    ->GetFieldAt(static_cast<unsigned int>(column), static_cast<unsigned int>(row))
                    ->GetHighlight() == highlight)
                names += (names.empty() ? "" : " ") + NameOf(column, row);
    return names;
}

bool GameTest::AnyoneBusy() {
    const ChessFigure3D* mated = nullptr;
    if (game->matedPlayer != Player::NoPlayer && game->targetField == nullptr)
        mated = game->GetFigure3D(game->checkedKingField->GetX(), game->checkedKingField->GetY());
    return std::ranges::any_of(game->figures, [mated](ChessFigure3D* figure) {
        return figure != nullptr && figure != mated && figure->IsFinished();
    });
}

bool GameTest::InScene(const DrawAble* drawable) {
    return std::ranges::count(engine.GetRenderer().GetSceneList(), drawable) > 0;
}

int GameTest::PickableParts(DrawAble& drawable) {
    std::array<GLuint, 1024> buffer{};
    glSelectBuffer(static_cast<GLsizei>(buffer.size()), buffer.data());
    glRenderMode(GL_SELECT);
    glInitNames();
    glMatrixMode(GL_PROJECTION);
    glPushMatrix();
    glLoadIdentity();
    glOrtho(-40.0, 40.0, -40.0, 40.0, -40.0, 40.0);
    glMatrixMode(GL_MODELVIEW);
    glPushMatrix();
    glLoadIdentity();
    glRotatef(45.0f, 1.0f, 0.0f, 0.0f);
    drawable.Draw(renderImmediate, false, true, false, &eye, &eye);
    glPopMatrix();
    glMatrixMode(GL_PROJECTION);
    glPopMatrix();
    glMatrixMode(GL_MODELVIEW);
    return glRenderMode(GL_RENDER);
}

bool GameTest::CursorShows() {
    return SDL_ShowCursor(SDL_QUERY) == SDL_ENABLE;
}

std::string GameTest::Picking() {
    EXPECT_EQ(CursorShows(), engine.GetInput().IsMouseEnabled());
    return std::string(engine.GetInput().IsMouseEnabled() ? "mouse on" : "mouse off") +
           (PickableParts(*game->selectionGrid) == 64 ? ", grid visible" : ", grid hidden");
}

std::string GameTest::CheckText() {
    EXPECT_EQ(game->leftScoreBoard->checkBox.GetText(), game->rightScoreBoard->checkBox.GetText());
    EXPECT_EQ(game->leftScoreBoard->checkBox.IsVisible(), game->rightScoreBoard->checkBox.IsVisible());
    return game->leftScoreBoard->checkBox.IsVisible() ? game->leftScoreBoard->checkBox.GetText() : "";
}

std::string GameTest::TurnText() {
    EXPECT_EQ(game->leftScoreBoard->turnBox.GetText(), game->rightScoreBoard->turnBox.GetText());
    return game->leftScoreBoard->turnBox.GetText();
}

std::vector<PlayedSound> GameTest::TakeSounds() {
    static const std::vector<std::string> known{"media/beep1.wav",         "media/beep3.wav",
                                                "media/error0.wav",        "media/error1.wav",
                                                "media/error2.wav",        "media/check0.wav",
                                                "media/check1.wav",        "media/checkMate0.wav",
                                                "media/pawnSelected0.wav", "media/pawnSelected1.wav",
                                                "media/rookSelected0.wav", "media/pawnAck0.wav",
                                                "media/pawnAck1.wav",      "media/rookAck0.wav",
                                                "media/rookAck1.wav",      "media/kingSelfDestructStart.wav"};
    return TakePlayedSounds(*engine.GetSounds(), known);
}

std::string GameTest::Console(const std::function<void()>& work) {
    ::testing::internal::CaptureStdout();
    ::testing::internal::CaptureStderr();
    work();
    const std::string output = ::testing::internal::GetCapturedStdout();
    return output + ::testing::internal::GetCapturedStderr();
}

}  // namespace tolvane::test
