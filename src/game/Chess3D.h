#pragma once

#include <memory>
#include <string>
#include <vector>

#include "actions/ActionFactory.h"
#include "game/DemoMoveList.h"
#include "game/FigureAsset.h"
#include "game/Game3D.h"
#include "rules/ChessBoardView.h"
#include "rules/ChessGame.h"
#include "rules/ChessGameFigure.h"
#include "rules/Coordinate.h"
#include "rules/CoordinateList.h"
#include "rules/FigureType.h"
#include "rules/MoveResult.h"
#include "rules/Player.h"

namespace tolvane {

class Action;
class BoardSelectionGrid;
class ChessFigure3D;
class Engine3D;
class MD2_Instance;
class MD2_Store;
class ParticleEffect;
class ScoreBoard;
class Shader;
class ShaderStore;
class SoundManager;
class TextBox2D;
class TextureHandler;

// The game itself: it joins the rules to the scene and drives the turns. Two people share one mouse; a click
// picks a figure, a second one its target. The rules play the move at once, the scene follows for seconds by
// a script of the moving figure, and when the last figure has come to rest the mouse is given back.
//
// What the game waits for follows from its fields:
//   a figure to be picked     selectedField null, mouse on
//   a target to be picked     selectedField set, mouse on
//   a script to end           mouse off, grid hidden
//   a promotion to be chosen  promotionField set, nothing busy: keys alone count
//   nothing any more          a mated king destroys itself; its script never ends
class Chess3D : public Game3D {
public:
    // Touches neither GL nor files: it may run before there is a window.
    Chess3D();
    // Deletes boxes, grid and score boards. Figures, board and effects stay (see LastingObjects).
    ~Chess3D();
    Chess3D(const Chess3D&) = delete;
    Chess3D& operator=(const Chess3D&) = delete;

    // Builds board, figures, overlays and sounds, and starts the music. Needs the window; the frame is not
    // owned and must stay until the last frame is drawn. What a store throws about a missing file passes
    // through.
    void Initialize(Engine3D* frame);
    // Builds the scene for a position; part of Initialize.
    void InitializeBoard(ChessBoardView view);

    // The figure that the scene shows on a field, or null. Column and row from 0 to 7. Throws
    // InvalidParameterException outside 0 to 8, and std::out_of_range where 8 leads off the table.
    ChessFigure3D* GetFigure3D(int column, int row);
    void SetFigure3D(int column, int row, ChessFigure3D* figure);

    void ExecuteMove() override;
    void OnActionFinished(Element3D* element) override;
    // Throws what the rules say about a field where only the scene still shows a figure.
    void OnElementPicked(Element3D* element) override;
    void AdvancePawn(int figureType) override;
    void StartDemo() override;

    // Drops the picked figure, its target and their frames on the grid.
    void ClearSelection();
    // Clicks the next half-move of the demo or, behind the last one, gives the mouse back.
    void PlayNextDemoMove();

protected:
    // The state of the game, for a derived class to look on.
    Engine3D* engine = nullptr;  // not owned
    ChessGame chessGame;
    float boardOriginX = -12.25f;         // world units, the centre of column 0
    float boardOriginZ = 12.25f;          // the centre of row 0
    std::vector<ChessFigure3D*> figures;  // column + row * 8; null is an empty field; not owned
    std::unique_ptr<Coordinate> selectedField;
    std::unique_ptr<Coordinate> targetField;
    OwnedCoordinates reachableFields;
    std::unique_ptr<Coordinate> capturedField;
    std::unique_ptr<Coordinate> promotionField;  // set from the pawn's move until the choice is made
    std::unique_ptr<Coordinate> checkedKingField;
    bool demoAllowed = false;  // until the first pick
    bool demoRunning = false;
    DemoMoveList demoMoves;
    Player currentPlayer = Player::White;
    Player checkedPlayer = Player::NoPlayer;
    Player matedPlayer = Player::NoPlayer;
    std::unique_ptr<BoardSelectionGrid> selectionGrid;
    TextureHandler* textures = nullptr;  // the four stores are the frame's
    MD2_Store* models = nullptr;
    ShaderStore* shaders = nullptr;
    SoundManager* sounds = nullptr;
    std::unique_ptr<FigureAsset[]> figureAssets;  // by ChessGameFigure code
    std::vector<MD2_Instance*> canModels;         // shared by all queens, as is the saucer
    MD2_Instance* ufoModel = nullptr;
    std::unique_ptr<ScoreBoard> leftScoreBoard;  // both null where the driver cannot show them
    std::unique_ptr<ScoreBoard> rightScoreBoard;
    std::unique_ptr<TextBox2D> nextPlayerBox;  // the score boards tell the turn: on no list, never drawn
    std::unique_ptr<TextBox2D> spareBox;       // on no list, never drawn
    std::unique_ptr<TextBox2D> promotionPrompt;
    std::unique_ptr<TextBox2D> quitBox;  // stays hidden
    ActionFactory actionFactory;
    std::vector<std::string> errorSounds;
    std::vector<std::string> checkSounds;
    std::vector<std::string> mateSounds;

private:
    // Set-up
    void SetUpField(int column, int row, ChessGameFigure code, Shader* shader);
    void BuildScoreBoards(Shader* shader);
    std::unique_ptr<ScoreBoard> BuildScoreBoard(Shader* shader, ParticleEffect* flames, float x);
    void BuildTextBoxes();
    void LoadSounds();
    MD2_Instance* LoadModel(const FigureAsset& asset);
    ChessFigure3D* MakeFigure(FigureType type, Player player, int column, int row, Shader* shader);
    void PlaceFigure(ChessFigure3D* figure);

    // Picking
    void PickFigure(const Coordinate& field);
    void PickTarget(Element3D* element);
    bool IsReachable(const Coordinate& field) const;
    void SetPicking(bool on);
    void HighlightField(const Coordinate& field, int code);
    void HighlightReachable(int code);

    // Playing
    ChessFigure3D* FigureOn(const Coordinate& field);
    Action* CreateScene(ChessFigure3D* figure, const MoveResult& result);
    Action* CreateCastling(ChessFigure3D* king, const Coordinate& rookField);

    // Coming to rest
    void FinishMove(ChessFigure3D* mover);
    bool AnyFigureBusy() const;
    void ShowCheck(Player checked, Player mated);
    void DestroyKing(const Coordinate& field);
    void PlayCue(const std::vector<std::string>& cues);
    template <typename Change>
    void ChangeScoreBoards(Change change);
};

}  // namespace tolvane
