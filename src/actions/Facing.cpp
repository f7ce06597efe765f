#include "actions/Facing.h"

#include <array>
#include <cstddef>

namespace tolvane {

std::optional<int> TurnTowards(Player player, int columnSign, int rowSign) {
    // The two sides look at each other, so that left and right, too, change places.
    const int forward = player == Player::White ? 1 : -1;
    const int ahead = rowSign * forward;
    if (columnSign == 0)
        return ahead < 0 ? std::optional(180) : std::nullopt;
    constexpr std::array sideways{135, 90, 45};  // backwards, level, forwards
    return -forward * columnSign * sideways[static_cast<std::size_t>(ahead + 1)];
}

}  // namespace tolvane
