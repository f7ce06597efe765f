#pragma once

#include "rules/ChessMove.h"

namespace tolvane {

// The place of castling among the moves. It stays abstract: castling is played by KingMove.
class CastlingMove : public ChessMove {};

}  // namespace tolvane
