#include "rules/Board.h"

#include "assets/InvalidParameterException.h"

namespace tolvane {

Board::Board(int columns, int rows)
    : grid(std::make_unique<std::vector<std::vector<Field>>>(columns, std::vector<Field>(rows))) {}

Field& Board::FieldAt(int x, int y) {
    const int columns = static_cast<int>(grid->size());
    if (x < 0 || x >= columns || y < 0 || y >= static_cast<int>((*grid)[x].size())) {
        throw InvalidParameterException("Coordinate(s) are out of bound!");
    }
    return (*grid)[x][y];
}

void Board::SetField(const Field& field) {
    FieldAt(field.GetX(), field.GetY()) = field;
}

}  // namespace tolvane
