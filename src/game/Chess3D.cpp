// The part of Chess3D that runs during play: picking, the turns, promotion and the demo game.
#include "game/Chess3D.h"

#include <algorithm>
#include <array>
#include <iostream>

#include "assets/InvalidParameterException.h"
#include "assets/Numbers.h"
#include "assets/SoundManager.h"
#include "figures/ChessFigure3D.h"
#include "frame/Engine3D.h"
#include "scene/BoardSelectionGrid.h"
#include "scene/FieldCentre.h"
#include "scene/ScoreBoard.h"
#include "scene/TextBox2D.h"

namespace tolvane {

namespace {

constexpr int noHighlight = 0;
constexpr int selectedHighlight = 1;
constexpr int reachableHighlight = 2;
constexpr int targetHighlight = 3;

constexpr int cueVolume = 128;
constexpr int beepVolume = 50;

// What the score boards say of each player.
struct PlayerTexts {
    const char* next;
    const char* check;
    const char* mate;
};

constexpr std::array playerTexts{
    PlayerTexts{.next = "Next: White", .check = "White is CHECK!", .mate = "White is CHECK-MATE!"},
    PlayerTexts{.next = "Next: Black", .check = "Black is CHECK!", .mate = "Black is CHECK-MATE!"},
};
static_assert(playerTexts.size() == static_cast<std::size_t>(Player::NoPlayer));

const PlayerTexts& TextsOf(Player player) {
    return playerTexts.at(static_cast<std::size_t>(player));
}

struct DemoRow {
    int sourceX;
    int sourceY;
    int targetX;
    int targetY;
};

// A game that shows the figures off: captures, both castlings and the queen.
constexpr std::array demoGame{
    DemoRow{4, 1, 4, 3},  // e2-e4
    DemoRow{6, 7, 7, 5},  // g8-h6
    DemoRow{5, 0, 3, 2},  // f1-d3
    DemoRow{5, 6, 5, 4},  // f7-f5
    DemoRow{4, 3, 5, 4},  // e4xf5
    DemoRow{7, 5, 5, 4},  // h6xf5
    DemoRow{3, 2, 5, 4},  // d3xf5
    DemoRow{4, 6, 4, 5},  // e7-e6
    DemoRow{5, 4, 7, 2},  // f5-h3
    DemoRow{5, 7, 3, 5},  // f8-d6
    DemoRow{6, 0, 5, 2},  // g1-f3
    DemoRow{4, 7, 6, 7},  // e8-g8, castling
    DemoRow{3, 1, 3, 3},  // d2-d4
    DemoRow{3, 7, 5, 5},  // d8-f6
    DemoRow{2, 0, 6, 4},  // c1-g5
    DemoRow{5, 5, 6, 5},  // f6-g6
    DemoRow{1, 0, 2, 2},  // b1-c3
    DemoRow{1, 7, 2, 5},  // b8-c6
    DemoRow{3, 0, 3, 1},  // d1-d2
    DemoRow{1, 6, 1, 5},  // b7-b6
    DemoRow{4, 0, 2, 0},  // e1-c1, castling
};
static_assert(demoGame.size() == 21);

Coordinate PlaceOf(const Element3D& element) {
    return {static_cast<int>(element.GetColumn()), static_cast<int>(element.GetRow())};
}

std::size_t EntryOf(int column, int row) {
    const int entry = column + row * 8;
    return static_cast<std::size_t>(entry);
}

bool SamePlace(const Coordinate& a, const Coordinate& b) {
    return a.GetX() == b.GetX() && a.GetY() == b.GetY();
}

}  // namespace

// What stands where

ChessFigure3D* Chess3D::GetFigure3D(int column, int row) {
    if (column < 0 || column > 8 || row < 0 || row > 8) {
        std::cout << "pos_X = " << column << ", " << row << '\n';
        throw InvalidParameterException("Coordinate(s) are out of bound!");
    }
    return figures.at(EntryOf(column, row));
}

void Chess3D::SetFigure3D(int column, int row, ChessFigure3D* figure) {
    figures[EntryOf(column, row)] = figure;
}

ChessFigure3D* Chess3D::FigureOn(const Coordinate& field) {
    return GetFigure3D(field.GetX(), field.GetY());
}

// Picking

void Chess3D::OnElementPicked(Element3D* element) {
    if (promotionField)
        return;
    demoAllowed = false;
    if (selectedField)
        PickTarget(element);
    else
        PickFigure(PlaceOf(*element));
}

void Chess3D::PickFigure(const Coordinate& field) {
    ChessFigure3D* const figure = FigureOn(field);
    if (figure == nullptr || figure->GetPlayer() != currentPlayer)
        return;
    if (!figure->PlaySelectedSound())
        sounds->PlaySample("media/beep3.wav", beepVolume, 0);
    selectedField = std::make_unique<Coordinate>(field);
    reachableFields.reset(chessGame.ReachableFields(field.GetX(), field.GetY()));
    HighlightField(field, selectedHighlight);
    HighlightReachable(reachableHighlight);
}

void Chess3D::PickTarget(Element3D* element) {
    const Coordinate field = PlaceOf(*element);
    if (SamePlace(field, *selectedField)) {
        ClearSelection();
        return;
    }
    ChessFigure3D* const figure = FigureOn(field);
    if (figure != nullptr && figure->GetPlayer() == currentPlayer) {
        ClearSelection();
        OnElementPicked(element);
        return;
    }
    if (!IsReachable(field))
        return;
    targetField = std::make_unique<Coordinate>(field);
    ExecuteMove();
}

void Chess3D::ClearSelection() {
    if (selectedField) {
        HighlightField(*selectedField, noHighlight);
        HighlightReachable(noHighlight);
        if (targetField)
            HighlightField(*targetField, noHighlight);
    }
    selectedField.reset();
    targetField.reset();
    reachableFields.reset();
    capturedField.reset();
}

bool Chess3D::IsReachable(const Coordinate& field) const {
    return reachableFields && std::ranges::any_of(*reachableFields, [&](const Coordinate* reachable) {
               return SamePlace(*reachable, field);
           });
}

void Chess3D::HighlightField(const Coordinate& field, int code) {
    selectionGrid
        ->GetFieldAt(static_cast<unsigned int>(field.GetX()), static_cast<unsigned int>(field.GetY()))
        ->SetHighlight(code);
}

void Chess3D::HighlightReachable(int code) {
    if (reachableFields)
        for (const Coordinate* field : *reachableFields)
            HighlightField(*field, code);
}

void Chess3D::SetPicking(bool on) {
    engine->GetInput().SetMouseEnabled(on);
    selectionGrid->SetVisible(on);
}

// Playing a move

void Chess3D::ExecuteMove() {
    SetPicking(false);
    try {
        const MoveResult result = chessGame.PlayMove(selectedField.get(), targetField.get());
        capturedField.reset(result.CapturedField());
        promotionField.reset(result.PromotionField());
        checkedKingField.reset(result.CheckedKingField());
        checkedPlayer = result.CheckedPlayer();
        matedPlayer = result.MatedPlayer();
        std::cout << "Player is CHECK: " << static_cast<int>(checkedPlayer) << '\n'
                  << "Player is CHECK-MATE: " << static_cast<int>(matedPlayer) << '\n'
                  << "**********************************\n\n";
        HighlightReachable(noHighlight);
        HighlightField(*targetField, targetHighlight);

        ChessFigure3D* const figure = FigureOn(*selectedField);
        if (!figure->PlayAckSound())
            sounds->PlaySample("media/beep1.wav", beepVolume, 0);
        figure->SetAction(CreateScene(figure, result));
    } catch (const Exception& e) {
        std::cout << "++++ CHESSGAME ERRORHANDLING ++++\n";
        e.Print();
        ClearSelection();
        SetPicking(true);
        PlayCue(errorSounds);
    }
}

Action* Chess3D::CreateScene(ChessFigure3D* figure, const MoveResult& result) {
    if (capturedField) {
        ChessFigure3D* const victim = FigureOn(*capturedField);
        if (victim != nullptr && victim != figure)
            return actionFactory.CreateAttackAction(figure, victim, fieldSize);
        // A pawn that a refused en passant has moved on the logical board alone: there is nobody to fight.
        capturedField.reset();
    }
    if (const std::unique_ptr<Coordinate> rookField{result.CastlingRookField()})
        return CreateCastling(figure, *rookField);
    return actionFactory.CreateMoveAction(figure, targetField->GetX(), targetField->GetY(), fieldSize);
}

// The rules answer the rook's new field, while its figure still stands in the corner.
Action* Chess3D::CreateCastling(ChessFigure3D* king, const Coordinate& rookField) {
    const int direction = Sign(targetField->GetX() - selectedField->GetX());
    const int oldColumn = direction < 0 ? rookField.GetX() - 3 : rookField.GetX() + 2;
    ChessFigure3D* const rook = GetFigure3D(oldColumn, rookField.GetY());
    Action* const scene = actionFactory.CreateCastlingAction(king, rook, fieldSize);
    SetFigure3D(rookField.GetX(), rookField.GetY(), rook);
    SetFigure3D(oldColumn, rookField.GetY(), nullptr);
    return scene;
}

void Chess3D::OnActionFinished(Element3D* element) {
    if (targetField && SamePlace(PlaceOf(*element), *targetField))
        FinishMove(static_cast<ChessFigure3D*>(element));
    if (AnyFigureBusy())
        return;
    promotionPrompt->SetVisible(promotionField != nullptr);
    ShowCheck(checkedPlayer, matedPlayer);
    if (checkedPlayer != Player::NoPlayer) {
        if (matedPlayer != Player::NoPlayer) {
            DestroyKing(*checkedKingField);
            return;
        }
        PlayCue(checkSounds);
    }
    if (demoRunning)
        PlayNextDemoMove();
    else
        SetPicking(true);
}

// After an en passant the victim's entry stays in the table: only the mover's two fields are written.
void Chess3D::FinishMove(ChessFigure3D* mover) {
    if (capturedField)
        engine->RemoveDrawable(FigureOn(*capturedField));
    SetFigure3D(selectedField->GetX(), selectedField->GetY(), nullptr);
    SetFigure3D(targetField->GetX(), targetField->GetY(), mover);
    currentPlayer = Opponent(currentPlayer);
    ChangeScoreBoards(
        [this](ScoreBoard& board) { board.turnBox.SetText(TextsOf(currentPlayer).next, 80, 50); });
    ClearSelection();
}

bool Chess3D::AnyFigureBusy() const {
    return std::ranges::any_of(
        figures, [](ChessFigure3D* figure) { return figure != nullptr && figure->IsFinished(); });
}

void Chess3D::AdvancePawn(int figureType) {
    if (!promotionField || AnyFigureBusy())
        return;
    try {
        ChessFigure3D* const pawn = FigureOn(*promotionField);
        const auto type = static_cast<FigureType>(figureType);
        const MoveResult result = chessGame.PromotePawn(type);
        const Coordinate field = PlaceOf(*pawn);
        ChessFigure3D* const figure =
            MakeFigure(type, pawn->GetPlayer(), field.GetX(), field.GetY(), pawn->GetShader());
        PlaceFigure(figure);
        engine->RemoveDrawable(pawn);
        engine->AddDrawable(figure);
        promotionField.reset();
        ShowCheck(result.CheckedPlayer(), result.MatedPlayer());
        if (result.MatedPlayer() != Player::NoPlayer) {
            // The move before may have given no check: then the promotion itself knows the king.
            if (!checkedKingField)
                checkedKingField.reset(result.CheckedKingField());
            SetPicking(false);
            DestroyKing(*checkedKingField);
        } else if (result.CheckedPlayer() != Player::NoPlayer) {
            PlayCue(checkSounds);
        }
        promotionPrompt->SetVisible(false);
    } catch (const Exception& e) {
        std::cout << "++++ CHESSGAME ERRORHANDLING - AdvancePawn ++++\n";
        e.Print();
    }
}

// Check and mate

// Both texts share one box: a mate stands in the place of the check.
void Chess3D::ShowCheck(Player checked, Player mated) {
    ChangeScoreBoards([=](ScoreBoard& board) {
        if (checked != Player::NoPlayer)
            board.checkBox.SetText(TextsOf(checked).check, 60, 100);
        board.checkBox.SetVisible(checked != Player::NoPlayer);
        if (mated != Player::NoPlayer) {
            board.checkBox.SetText(TextsOf(mated).mate, 25, 100);
            board.checkBox.SetVisible(true);
        }
        board.RenderScreen();
    });
}

void Chess3D::DestroyKing(const Coordinate& field) {
    PlayCue(mateSounds);
    ChessFigure3D* const king = FigureOn(field);
    king->SetAction(actionFactory.CreateSelfDestructAction(king));
}

void Chess3D::PlayCue(const std::vector<std::string>& cues) {
    if (cues.empty())
        return;
    const int entry = RandomInRange(1, static_cast<int>(cues.size())) - 1;
    sounds->PlaySample(cues[static_cast<std::size_t>(entry)], cueVolume, 0);
}

// The one place that knows of a driver without score boards.
template <typename Change>
void Chess3D::ChangeScoreBoards(Change change) {
    for (ScoreBoard* const board : {leftScoreBoard.get(), rightScoreBoard.get()})
        if (board != nullptr)
            change(*board);
}

// The demo game

void Chess3D::StartDemo() {
    if (!demoAllowed)
        return;
    demoRunning = true;
    for (const DemoRow& row : demoGame)
        demoMoves.Add({{row.sourceX, row.sourceY}, {row.targetX, row.targetY}});
    PlayNextDemoMove();
}

// At the end the grid stays hidden, so that only figures can be picked until a move has been played.
void Chess3D::PlayNextDemoMove() {
    if (!demoMoves.HasNext()) {
        demoRunning = false;
        engine->GetInput().SetMouseEnabled(true);
        return;
    }
    const DemoMove move = demoMoves.Next();
    const Coordinate source = move.GetSource();
    const Coordinate target = move.GetTarget();
    OnElementPicked(FigureOn(source));
    OnElementPicked(selectionGrid->GetFieldAt(static_cast<unsigned int>(target.GetX()),
                                              static_cast<unsigned int>(target.GetY())));
}

}  // namespace tolvane
