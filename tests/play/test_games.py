"""Games on the real program: every case is a person at the mouse."""

import array
import math
import pathlib
import re
import tempfile
import time
import unittest

from player import GREEN, RED, Player, corner, project

PLAYED = r"Player is CHECK: (\d)\nPlayer is CHECK-MATE: (\d)\n\*{34}\n\n"


def chequered(player):
    """Whether the free field f4 has its green cover, which goes while a scene is played."""
    red, green, _ = player.look().at(*project(corner("f4", 0.5, 0.5)))
    return green - red > 20


class Moves(unittest.TestCase):
    def test_a_quiet_move_of_each_kind_of_figure(self):
        with Player("quiet") as player:
            player.wait_for_board()
            player.shoot("start")
            # pawns, knights, bishops, queen, rooks and kings of both sides
            player.play("e2e4 e7e5 g1f3 b8c6 f1c4 f8c5 d1e2 d8e7 h1g1 a8b8 e1d1 e8d8")
            player.select("a2")
            player.shoot("end")
            results = re.findall(PLAYED, player.text() + "\n\n")
            self.assertEqual(results, [("2", "2")] * 12)
            self.assertEqual(player.refusals(), 0)
            self.assertEqual(player.leave(), 0)

    def test_captures_by_pawn_rook_bishop_and_king(self):
        with Player("captures") as player:
            player.wait_for_board()
            player.play("e2e4 d7d5")
            player.move("e4", "d5")  # pawn takes pawn
            for stage in ("turning", "fighting", "fading"):
                time.sleep(1.0)
                player.shoot("pawn-" + stage)
            player.play("a7a5 f1a6")
            player.move("a8", "a6")  # rook takes bishop
            player.shoot("rook")
            player.play("h2h4 c8g4 h1h3")
            player.move("g4", "h3")  # bishop takes rook
            player.shoot("bishop")
            player.play("d5d6 h3g2 d6c7 e7e6 c7d8")
            player.promote("1")  # the pawn that took the queen becomes one, and gives check
            player.move("e8", "d8")  # king takes queen
            time.sleep(0.5)
            player.shoot("king")
            player.select("a2")
            self.assertEqual(player.refusals(), 0)
            self.assertEqual(player.leave("q"), 0)

    def test_en_passant(self):
        with Player("en-passant") as player:
            player.wait_for_board()
            player.play("e2e4 a7a6 e4e5 d7d5")
            player.move("e5", "d6")
            time.sleep(1.5)
            player.shoot("fight")
            player.move("a6", "a5")
            player.select("d6")
            player.shoot("after")
            self.assertEqual(player.refusals(), 0)
            self.assertEqual(player.leave(), 0)

    def test_full_screen_and_camera_answer_while_a_scene_runs(self):
        with Player("full-screen", speed=1) as player:
            player.wait_for_board()
            player.play("e2e4 d7d5")
            player.until(lambda: chequered(player), "the next turn")
            player.move("e4", "d5")
            for key in ("a", "d"):
                before = player.look()
                player.hold(key, 0.5)
                player.until(lambda: player.look().differences(before) > 20000, "the camera to turn")
            player.press("Tab")
            player.wait_for_line("toggle Fullscreen: 1")
            player.press("Tab")
            player.wait_for_line("toggle Fullscreen: 1", count=2)
            player.until(lambda: player.look().at(512, 384) != (0, 0, 0), "the picture to come back")
            self.assertFalse(chequered(player), "the fight is over too early to tell")
            player.shoot("back")
            player.close()  # without a window manager the keys have no window to go to now
            player.wait_for_line('Press "Enter" to exit')
            player.say("")
            self.assertEqual(player.program.wait(timeout=30), 0)

    def test_a_check_is_told(self):
        with Player("check") as player:
            player.wait_for_board()
            player.play("e2e4 f7f6 d1h5")
            player.wait_for_line("Player is CHECK: 1\nPlayer is CHECK-MATE: 2")
            player.select("g7")
            player.shoot("check")
            self.assertEqual(player.leave(), 0)


class Promotions(unittest.TestCase):
    def promote(self, key):
        with Player("promotion-" + key) as player:
            player.wait_for_board()
            player.play("g2g4 h7h5 g4h5 g7g6 h5g6 a7a6 g6g7 a6a5 g7h8")
            player.press(key)  # too early: the pawn is still fighting
            player.until(player.sees_prompt, "the prompt", seconds=120)
            player.shoot("prompt")
            player.click("a5")  # the board is dead until the choice is made
            time.sleep(0.5)
            self.assertIsNone(player.frame_colour("a5"))
            player.promote(key)
            player.shoot("chosen")
            player.move("a5", "a4")
            player.select("h8")
            marked = {f for f in ("g8", "g7", "h7", "f7", "g6", "f6")
                      if player.frame_colour(f) == GREEN}
            player.shoot("reach")
            self.assertNotIn("ERRORHANDLING", player.text())
            self.assertEqual(player.leave(), 0)
            return marked

    def test_to_a_queen(self):
        self.assertEqual(self.promote("1"), {"g8", "g7", "h7", "f6"})

    def test_to_a_rook(self):
        self.assertEqual(self.promote("2"), {"g8", "h7"})

    def test_to_a_knight(self):
        self.assertEqual(self.promote("3"), {"f7", "g6"})

    def test_to_a_bishop(self):
        self.assertEqual(self.promote("4"), {"g7", "f6"})


class Picking(unittest.TestCase):
    def test_marks_what_a_click_means(self):
        with Player("picking", speed=1) as player:
            player.wait_for_board()

            player.click("e7")  # the enemy's
            player.click("e4")  # nobody's
            time.sleep(0.5)
            self.assertIsNone(player.frame_colour("e7"))
            self.assertIsNone(player.frame_colour("e4"))

            player.select("e2")
            player.until(lambda: player.frame_colour("e4") == GREEN, "e4 to light up")
            self.assertEqual(player.frame_colour("e3"), GREEN)
            player.shoot("selected")

            player.click("e2")  # dropped again
            player.until(lambda: player.frame_colour("e2") is None, "e2 to be dropped")
            self.assertIsNone(player.frame_colour("e4"))

            player.select("e2")
            player.click("g1")  # another of one's own
            player.until(lambda: player.frame_colour("f3") == GREEN, "the knight's fields")
            self.assertIsNone(player.frame_colour("e2"))
            self.assertEqual(player.frame_colour("h3"), GREEN)
            player.shoot("reselected")

            player.click("e5")  # out of the knight's reach: nothing happens
            time.sleep(0.4)
            self.assertEqual(player.frame_colour("f3"), GREEN)
            self.assertEqual(player.plays(), 0)
            self.assertEqual(player.leave(), 0)

    def test_every_mouse_button_picks(self):
        with Player("buttons", speed=1) as player:
            player.wait_for_board()
            for button, field in ((1, "a2"), (2, "b2"), (3, "c2"), (4, "d2")):
                player.click(field, button)
                player.until(lambda: player.frame_colour(field) == RED, f"{field} by button {button}")
            self.assertEqual(player.leave(), 0)

    def test_a_click_counts_where_the_button_comes_up(self):
        with Player("drag", speed=1) as player:
            player.wait_for_board()
            player.drag("a2", "d2")
            player.until(lambda: player.frame_colour("d2") == RED, "d2 to be picked")
            self.assertIsNone(player.frame_colour("a2"))
            self.assertEqual(player.leave(), 0)

    def test_a_move_that_leaves_the_king_in_check_is_refused(self):
        with Player("refusal") as player:
            player.wait_for_board()
            player.play("e2e4 e7e5 d2d3 f8b4")  # check
            player.try_move("a2", "a3")
            self.assertIn("++++ CHESSGAME ERRORHANDLING ++++", player.text())
            self.assertIn(" Error message: The King is Check! MAIN", player.errors)
            player.shoot("refused")
            player.until(lambda: player.frame_colour("a2") is None, "the highlights to go out")
            player.play("b1c3 g8f6")  # the same player picks again
            player.try_move("c3", "d5")  # pinned
            self.assertEqual(player.refusals(), 2)
            self.assertEqual(player.leave(), 0)


class WholeGames(unittest.TestCase):
    def test_a_mate_ends_in_the_kings_end(self):
        with Player("mate", speed=3) as player:
            player.wait_for_board()
            player.play("f2f3 e7e5 g2g4 d8h4")
            player.wait_for_line("Player is CHECK: 0\nPlayer is CHECK-MATE: 0")
            king = (project((1.75, 0.0, 12.25)), project((1.75, 3.0, 12.25)))
            box = (int(king[0][0]) - 40, int(king[1][1]) - 20, int(king[0][0]) + 40, int(king[0][1]) + 20)
            standing = player.look()
            for stage in range(10):
                time.sleep(0.3)
                player.shoot(f"stage{stage}")
            player.until(lambda: player.look().differences(standing, box) > 1000, "the king to be gone")
            time.sleep(1.0)
            player.shoot("over")

            # The mouse is dead for good, the camera is not.
            player.click("a2")
            time.sleep(0.5)
            self.assertEqual(player.plays(), 4)
            before = player.look()
            player.hold("a", 0.3)
            self.assertGreater(player.look().differences(before), 20000)
            self.assertEqual(player.leave(), 0)

    def test_the_demo_plays_itself_and_hands_over_to_black(self):
        with Player("demo") as player:
            player.wait_for_board()
            player.press("space")
            for count in (6, 12, 16, 21):
                player.wait_for_line("Player is CHECK: ", seconds=240, count=count)
                time.sleep(0.4)
                player.shoot(f"move{count}")
            self.assertEqual(re.findall(PLAYED, player.text() + "\n\n"), [("2", "2")] * 21)
            self.assertEqual(player.text().count("§§§§§§ KING MOVED to 6:7"), 1)
            self.assertEqual(player.text().count("§§§§§§ KING MOVED to 2:0"), 1)

            # The grid stays hidden, but a figure can take a figure.
            def taken():
                player.click("c6")
                time.sleep(0.3)
                player.click("d4")
                time.sleep(0.5)
                return player.plays() == 22
            player.until(taken, "black to take", seconds=120)
            player.select("b2")
            player.shoot("handed-over")
            self.assertEqual(player.leave(), 0)

    def test_space_after_a_click_shows_no_demo(self):
        with Player("no-demo") as player:
            player.wait_for_board()
            player.click("e4")  # even an empty field
            time.sleep(0.5)
            player.press("space")
            time.sleep(1.0)
            self.assertEqual(player.plays(), 0)
            player.play("e2e4")
            self.assertEqual(player.leave(), 0)


class Sound(unittest.TestCase):
    """Listens to what a player would hear."""

    STEP = 0.05  # seconds that one level stands for

    def levels(self, path):
        """The loudness of each short step of a recording, 0 to 1."""
        samples = array.array("h")
        samples.frombytes(path.read_bytes()[:path.stat().st_size // 4 * 4])
        block = int(44100 * self.STEP) * 2
        return [math.sqrt(sum(s * s for s in samples[i:i + block]) / block) / 32768
                for i in range(0, len(samples) - block, block)]

    def test_a_fight_is_heard_over_the_music(self):
        with tempfile.TemporaryDirectory() as folder:
            recording = pathlib.Path(folder) / "heard.raw"
            # Ten milliseconds to a buffer of eleven and a half: the recording keeps up with the clock.
            sound = {"SDL_AUDIODRIVER": "disk", "SDL_DISKAUDIOFILE": str(recording), "SDL_DISKAUDIODELAY": "10"}
            with Player("sound", speed=1, environment=sound) as player:
                seconds = lambda: recording.stat().st_size / (44100 * 4)
                player.wait_for_board()
                quiet_from = seconds()
                time.sleep(4.0)
                quiet_to = seconds()
                player.play("e2e4 d7d5")
                player.select("e4")
                fight_from = seconds()
                player.move("e4", "d5")
                player.select("a7")  # the scene is over
                fight_to = seconds()
                self.assertEqual(player.leave(), 0)
            levels = self.levels(recording)

        def part(start, end):
            return levels[int(start / self.STEP):int(end / self.STEP)]
        music = part(quiet_from, quiet_to)
        fight = part(fight_from, fight_to)
        self.assertGreater(min(music), 0.001, "the music never falls silent")
        self.assertLess(max(levels), 0.9, "nothing clips")
        # Two rounds of two shots, the death and the pawn's steps and voice stand out of the music.
        ordinary = sorted(music)[len(music) // 2]
        loud = [level > 2.0 * ordinary for level in fight]
        bursts = sum(now and not before for before, now in zip([False] + loud, loud))
        self.assertGreaterEqual(bursts, 3)
        self.assertGreater(sum(loud) * self.STEP, 1.5)


class Endings(unittest.TestCase):
    def ends(self, name, act):
        with Player(name, speed=1) as player:
            player.wait_for_board()
            act(player)
            player.wait_for_line('Press "Enter" to exit')
            time.sleep(0.5)
            self.assertIsNone(player.program.poll(), "it waits for Enter")
            player.say("")
            self.assertEqual(player.program.wait(timeout=30), 0)
            self.assertIn("GL Error: invalid enumerant", player.errors)

    def test_escape(self):
        self.ends("escape", lambda player: player.press("Escape"))

    def test_q(self):
        self.ends("q", lambda player: player.press("q"))

    def test_the_close_button(self):
        self.ends("close", lambda player: player.close())


if __name__ == "__main__":
    unittest.main(verbosity=2)
