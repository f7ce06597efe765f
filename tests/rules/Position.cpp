#include "rules/Position.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string_view>
#include <typeindex>
#include <vector>

#include "assets/InvalidParameterException.h"
#include "rules/BoardGeometry.h"
#include "rules/FigureOn.h"
#include "rules/InvalidMoveException.h"
#include "rules/InvalidMoveTypeException.h"
#include "rules/King.h"
#include "rules/KingIsCheckException.h"
#include "rules/Rook.h"
#include "rules/WrongPlayerException.h"

namespace tolvane {

namespace {

constexpr std::string_view letters = "PRNBQK";  // by FigureType

char LetterOf(const ChessFigure* figure) {
    if (figure == nullptr) {
        return '.';
    }
    const char letter = letters[static_cast<int>(figure->GetType())];
    return figure->GetPlayer() == Player::White ? letter : static_cast<char>(std::tolower(letter));
}

// Takes every figure off the board.
FigureList Clear(ChessBoard* board) {
    FigureList stock;
    for (const Player player : {Player::White, Player::Black}) {
        const FigureList living = *board->GetFigures(player);
        for (ChessFigure* figure : living) {
            board->RemoveFigure(figure);
            stock.push_back(figure);
        }
    }
    return stock;
}

ChessFigure* TakeFrom(FigureList& stock, char letter) {
    const auto found = std::find_if(stock.begin(), stock.end(), [letter](const ChessFigure* figure) {
        return LetterOf(figure) == letter;
    });
    if (found == stock.end()) {
        throw std::logic_error(std::string("no such figure left to lay: ") + letter);
    }
    ChessFigure* figure = *found;
    stock.erase(found);
    return figure;
}

std::string Joined(const std::vector<std::string>& words) {
    std::string line;
    for (const std::string& word : words) {
        line += (line.empty() ? "" : " ") + word;
    }
    return line;
}

std::string MovedFlags(ChessBoard* board) {
    std::vector<std::string> moved;
    for (const Player player : {Player::White, Player::Black}) {
        for (const ChessFigure* figure : *board->GetFigures(player)) {
            const bool isMovedRook =
                figure->GetType() == FigureType::Rook && static_cast<const Rook*>(figure)->HasMoved();
            const bool isMovedKing =
                figure->GetType() == FigureType::King && static_cast<const King*>(figure)->HasMoved();
            if (isMovedRook || isMovedKing) {
                moved.push_back(NameOf(figure));
            }
        }
    }
    return Joined(moved);
}

}  // namespace

std::string WithoutBlanks(const std::string& picture) {
    std::string lines;
    std::istringstream words(picture);
    std::string line;
    while (std::getline(words, line)) {
        line.erase(std::remove(line.begin(), line.end(), ' '), line.end());
        if (!line.empty()) {
            lines += line + "\n";
        }
    }
    return lines;
}

std::unique_ptr<ChessBoard> Lay(const std::string& picture) {
    auto board = std::make_unique<ChessBoard>(true);
    FigureList stock = Clear(board.get());
    const std::string lines = WithoutBlanks(picture);
    if (lines.size() != boardSize * (boardSize + 1)) {
        throw std::logic_error("not a picture of a board:\n" + lines);
    }
    for (int y = 0; y < boardSize; ++y) {
        for (int x = 0; x < boardSize; ++x) {
            const char letter = lines[(boardSize - 1 - y) * (boardSize + 1) + x];
            if (letter == '.') {
                continue;
            }
            ChessFigure* figure = TakeFrom(stock, letter);
            figure->SetPosition(x, y);
            board->FieldAt(x, y).SetElement(figure);
        }
    }
    for (const Player player : {Player::White, Player::Black}) {
        for (int i = 0; i < boardSize; ++i) {
            for (int x = 0; x < boardSize; ++x) {
                ChessFigure* figure = FigureOn(board.get(), x, BackRow(player) + i * Forward(player));
                if (figure != nullptr && figure->GetPlayer() == player) {
                    board->GetFigures(player)->push_back(figure);
                }
            }
        }
    }
    return board;
}

std::string Picture(ChessBoard* board) {
    std::string lines;
    for (int y = boardSize - 1; y >= 0; --y) {
        for (int x = 0; x < boardSize; ++x) {
            lines += LetterOf(FigureOn(board, x, y));
        }
        lines += '\n';
    }
    return lines;
}

Coordinate At(const std::string& name) {
    return Coordinate(name.at(0) - 'a', name.at(1) - '1');
}

std::string NameOf(int x, int y) {
    return {static_cast<char>('a' + x), static_cast<char>('1' + y)};
}

ChessFigure* On(ChessBoard* board, const std::string& name) {
    ChessFigure* figure = FigureOn(board, At(name).GetX(), At(name).GetY());
    if (figure == nullptr) {
        throw std::logic_error("nothing stands on " + name + ":\n" + Picture(board));
    }
    return figure;
}

std::string NameOf(const ChessFigure* figure) {
    return figure == nullptr ? "-" : LetterOf(figure) + NameOf(figure->GetX(), figure->GetY());
}

std::string Names(const FigureList* list) {
    if (list == nullptr) {
        return "null";
    }
    std::vector<std::string> names;
    for (const ChessFigure* figure : *list) {
        names.push_back(NameOf(figure));
    }
    return Joined(names);
}

std::string Names(const CoordinateList* list) {
    std::multiset<std::string> names;
    for (const Coordinate* place : *list) {
        names.insert(NameOf(place->GetX(), place->GetY()));
    }
    return Joined({names.begin(), names.end()});
}

std::string Names(const OwnedCoordinates& list) {
    return Names(list.get());
}

std::string Snapshot(ChessBoard* board) {
    std::ostringstream text;
    text << Picture(board) << "white: " << Names(board->GetFigures(Player::White))
         << "\nblack: " << Names(board->GetFigures(Player::Black))
         << "\ncaptured: " << Names(board->GetCaptured())
         << "\ndouble step: " << NameOf(board->GetDoubleStepPawn())
         << "\npromotion: " << NameOf(board->GetPromotionPawn())
         << "\nchecked: " << NameOf(board->GetCheckedKing()) << "\nmated: " << NameOf(board->GetMatedKing())
         << "\ncastling: " << NameOf(board->GetCastlingRook())
         << "\ntoggle: " << static_cast<int>(board->GetCurrentPlayer()) << "\nmoved: " << MovedFlags(board)
         << "\n";
    return text.str();
}

MoveResult Play(ChessGame& game, const std::string& source, const std::string& target) {
    const Coordinate from = At(source);
    const Coordinate to = At(target);
    return game.PlayMove(&from, &to);
}

void PlayAll(ChessGame& game, const std::string& moves) {
    std::istringstream words(moves);
    std::string move;
    while (words >> move) {
        Play(game, move.substr(0, 2), move.substr(3, 2));
    }
}

std::string Reachable(ChessGame& game, const std::string& source) {
    return Names(OwnedCoordinates(game.ReachableFields(At(source).GetX(), At(source).GetY())));
}

std::string ClassAndText(const Exception& exception) {
    struct Row {
        std::type_index type;
        const char* name;
    };
    static const std::array<Row, 6> rows{
        Row{typeid(Exception), "Exception"},
        Row{typeid(InvalidParameterException), "InvalidParameterException"},
        Row{typeid(InvalidMoveException), "InvalidMoveException"},
        Row{typeid(InvalidMoveTypeException), "InvalidMoveTypeException"},
        Row{typeid(KingIsCheckException), "KingIsCheckException"},
        Row{typeid(WrongPlayerException), "WrongPlayerException"},
    };
    const auto row = std::find_if(rows.begin(), rows.end(), [&exception](const Row& candidate) {
        return candidate.type == typeid(exception);
    });
    return (row == rows.end() ? std::string("?") : row->name) + ": " + exception.GetMessage();
}

}  // namespace tolvane
