"""Pictures of the whole scene from six places of the camera."""

import time

from player import Player

# What is held from the starting view on, and for how many seconds.
PLACES = {
    "start": (),
    "near-white": (("c", 1.2),),
    "black-side": (("a", 12.0),),
    "from-the-right": (("d", 6.0), ("s", 1.2)),
    "above": (("w", 3.0),),
    "close": (("s", 1.5), ("c", 1.75)),
}


def main():
    for name, keys in PLACES.items():
        with Player("scene", speed=1) as player:
            player.wait_for_board()
            for key, seconds in keys:
                player.hold(key, seconds)
            time.sleep(1.0)
            player.shoot(name)
            player.leave()


if __name__ == "__main__":
    main()
