#pragma once

#include <cstdint>

namespace tolvane {

// Who a figure belongs to. White starts on rows 0 and 1, Black on rows 7 and 6.
enum class Player : std::int32_t {
    White = 0,
    Black = 1,
    NoPlayer = 2,  // only as an answer: nobody is in check, nobody is mated
};

constexpr Player Opponent(Player player) {
    return player == Player::White ? Player::Black : Player::White;
}

}  // namespace tolvane
