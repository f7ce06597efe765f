#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

namespace tolvane::test {

// A real window with a real GL context, opened once for a test program. The main function of test_support
// registers it; tests just call GL.
class GlWindow : public ::testing::Environment {
public:
    static constexpr int width = 1024;
    static constexpr int height = 768;

    void SetUp() override;
    void TearDown() override;
};

// The pixels of the back buffer, three bytes each, bottom row first.
struct Picture {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> rgb;

    int Red(int x, int y) const { return At(x, y, 0); }
    int Green(int x, int y) const { return At(x, y, 1); }
    int Blue(int x, int y) const { return At(x, y, 2); }

    // How many pixels differ by more than tolerance in any channel.
    int CountDifferences(const Picture& other, int tolerance) const;

private:
    int At(int x, int y, int channel) const;
};

Picture ReadPicture(int x = 0, int y = 0, int width = GlWindow::width, int height = GlWindow::height);

// Initialises GLUT, once for the whole test program.
void UseBitmapFonts();

// Whatever the console would have received on standard output while work ran.
template <typename Work>
std::string PrintedBy(Work&& work) {
    ::testing::internal::CaptureStdout();
    work();
    return ::testing::internal::GetCapturedStdout();
}

}  // namespace tolvane::test
