#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "assets/MD2_Instance.h"
#include "figures/ChessFigure3D.h"
#include "frame/Engine3D.h"
#include "game/Chess3D.h"
#include "game/PlayedSounds.h"
#include "scene/BoardSelectionGrid.h"
#include "scene/ScoreBoard.h"
#include "scene/TextBox2D.h"

namespace tolvane::test {

// The game with its state in full view.
class OpenGame : public Chess3D {
public:
    using Chess3D::canModels;
    using Chess3D::capturedField;
    using Chess3D::checkedKingField;
    using Chess3D::checkedPlayer;
    using Chess3D::checkSounds;
    using Chess3D::chessGame;
    using Chess3D::currentPlayer;
    using Chess3D::demoAllowed;
    using Chess3D::demoMoves;
    using Chess3D::demoRunning;
    using Chess3D::errorSounds;
    using Chess3D::figureAssets;
    using Chess3D::figures;
    using Chess3D::leftScoreBoard;
    using Chess3D::matedPlayer;
    using Chess3D::mateSounds;
    using Chess3D::nextPlayerBox;
    using Chess3D::promotionField;
    using Chess3D::promotionPrompt;
    using Chess3D::quitBox;
    using Chess3D::reachableFields;
    using Chess3D::rightScoreBoard;
    using Chess3D::selectedField;
    using Chess3D::selectionGrid;
    using Chess3D::spareBox;
    using Chess3D::targetField;
    using Chess3D::ufoModel;
};

constexpr const char* startPlacement = "rnbqkbnr/pppppppp/8/8/8/8/PPPPPPPP/RNBQKBNR";

// A real game in a real window. Fields go by their names, "a1" at White's left hand; a position is given as
// the rows from Black's to White's, capitals for White, digits for free fields.
class GameTest : public ::testing::Test {
protected:
    GameTest();

    // Begins a new game: builds the scene of a position, with a player to move.
    void Start(const std::string& placement = startPlacement, Player player = Player::White);

    // What the players do
    void Click(const std::string& field);        // on the grid
    void ClickFigure(const std::string& field);  // on the figure that stands there
    void Press(SDLKey key);
    // Clicks source and target and lets the scene run to its end.
    void Play(const std::string& source, const std::string& target);

    // What time does: one frame of the scene, in seconds
    void Frame(float seconds);
    // Frames until the condition holds, or until all figures are at rest, a mated king excepted; the seconds
    // that it took. Fails after ten minutes of the game's time.
    float PlayOut(const std::function<bool()>& done);
    float PlayOut();

    // A whole frame of the renderer, under a sun, with all that it does behind it.
    void Render();

    // What there is to be seen
    ChessFigure3D* FigureAt(const std::string& field);
    // Letters as in a position, from the figures of the scene's table.
    std::string ScenePlacement();
    std::string RulesPlacement();
    // The names of the fields with a highlight, by row and column.
    std::string Marked(int highlight);
    bool AnyoneBusy();  // a mated king, who never comes to rest, does not count
    bool InScene(const DrawAble* drawable);
    // How many names a drawable leaves in GL's selection mode, seen obliquely from above.
    static int PickableParts(DrawAble& drawable);
    bool CursorShows();
    // "mouse on, grid visible", or off and hidden.
    std::string Picking();
    // The text of the two score boards' lower line, empty when hidden; both boards must agree.
    std::string CheckText();
    std::string TurnText();
    std::vector<PlayedSound> TakeSounds();
    // The files that the set-up of the program's first game had opened: later games find them read.
    static const std::vector<std::string>& FilesOfSetUp();

    // Standard output while work runs, and standard error behind it.
    static std::string Console(const std::function<void()>& work);

    Engine3D& engine;
    OpenGame* game = nullptr;  // the one that was started last
};

}  // namespace tolvane::test
