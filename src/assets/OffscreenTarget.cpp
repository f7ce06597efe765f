#include "assets/OffscreenTarget.h"

#include <iostream>

#include "assets/Gl.h"

namespace tolvane {

namespace {

constexpr auto* stars = "**********************";

const char* StatusText(GLenum status) {
    switch (status) {
        case GL_FRAMEBUFFER_COMPLETE_EXT: return "framebuffer complete\n";
        case GL_FRAMEBUFFER_UNSUPPORTED_EXT: return "framebuffer unsupported\n";
        default: return "FORGET IT!\n";
    }
}

}  // namespace

OffscreenTarget::~OffscreenTarget() {
    if (texture > 0)
        glDeleteTextures(1, &texture);
    if (framebuffer > 0)
        glDeleteFramebuffersEXT(1, &framebuffer);
}

bool OffscreenTarget::IsSupported() {
    return glGenFramebuffersEXT != nullptr;
}

void OffscreenTarget::Init(int edge) {
    if (!IsSupported())
        return;
    size = edge;
    glGenFramebuffersEXT(1, &framebuffer);
    glGenRenderbuffersEXT(1, &depthBuffer);
    glBindRenderbufferEXT(GL_RENDERBUFFER_EXT, depthBuffer);
    glRenderbufferStorageEXT(GL_RENDERBUFFER_EXT, GL_DEPTH_COMPONENT24, size, size);

    // The window's framebuffer is what is asked about here, so the answer is for information only.
    std::cout << '\n' << stars << '\n';
    std::cout << StatusText(glCheckFramebufferStatusEXT(GL_FRAMEBUFFER_EXT));
    std::cout << stars << "\n\n";

    glGenTextures(1, &texture);
    ClearTexture();
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
}

void OffscreenTarget::ClearTexture() const {
    glBindTexture(GL_TEXTURE_2D, texture);
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RGB, size, size, 0, GL_RGB, GL_UNSIGNED_BYTE, nullptr);
}

void OffscreenTarget::Render(bool on) {
    if (!IsSupported())
        return;
    if (on)
        EnterPicture();
    else
        LeavePicture();
}

void OffscreenTarget::EnterPicture() {
    ClearTexture();
    glGetIntegerv(GL_VIEWPORT, savedViewport.data());
    glBindFramebufferEXT(GL_FRAMEBUFFER_EXT, framebuffer);
    glFramebufferTexture2DEXT(GL_FRAMEBUFFER_EXT, GL_COLOR_ATTACHMENT0_EXT, GL_TEXTURE_2D, texture, 0);
    glFramebufferRenderbufferEXT(GL_FRAMEBUFFER_EXT, GL_DEPTH_ATTACHMENT_EXT, GL_RENDERBUFFER_EXT,
                                 depthBuffer);
    glViewport(0, 0, size, size);
    glClearColor(0.0f, 0.0f, 0.3f, 1.0f);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    glTranslatef(0.0f, 0.0f, -5.0f);
}

void OffscreenTarget::LeavePicture() const {
    glBindFramebufferEXT(GL_FRAMEBUFFER_EXT, 0);
    glBindRenderbufferEXT(GL_RENDERBUFFER_EXT, 0);
    glViewport(savedViewport[0], savedViewport[1], savedViewport[2], savedViewport[3]);
}

}  // namespace tolvane
