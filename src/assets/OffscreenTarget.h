#pragma once

#include <array>

namespace tolvane {

// A square picture that is rendered into and then used as a texture. Needs the framebuffer extension.
class OffscreenTarget {
public:
    OffscreenTarget() = default;
    ~OffscreenTarget();
    OffscreenTarget(const OffscreenTarget&) = delete;
    OffscreenTarget& operator=(const OffscreenTarget&) = delete;

    // Whether the driver has the framebuffer extension. Without it Init and Render do nothing.
    static bool IsSupported();

    // Makes the picture, edge pixels wide and high. To be called once: a second call loses the first
    // picture's GL objects.
    void Init(int edge);
    // On: everything drawn goes into the picture, which starts dark blue, with an identity view moved five
    // units back; the modelview matrix is lost. Off: back to the window and its viewport.
    void Render(bool on);
    void Begin() { Render(true); }
    void End() { Render(false); }

    // The GL texture of the picture.
    unsigned int GetTexture() const { return texture; }

private:
    void EnterPicture();
    void LeavePicture() const;
    void ClearTexture() const;

    unsigned int texture = 0;
    unsigned int framebuffer = 0;
    unsigned int depthBuffer = 0;
    std::array<int, 4> savedViewport{};
    int size = 0;
};

}  // namespace tolvane
