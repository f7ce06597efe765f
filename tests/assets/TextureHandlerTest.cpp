#include "assets/TextureHandler.h"

#include <gmock/gmock.h>

#include <array>
#include <filesystem>
#include <optional>

#include "assets/Gl.h"
#include "support/GlWindow.h"
#include "support/TemporaryFile.h"
#include "support/TgaFile.h"

namespace tolvane {
namespace {

using test::PrintedBy;
using test::TemporaryFile;
using ::testing::ElementsAre;

class Pictures : public ::testing::Test {
protected:
    ~Pictures() override {
        glBindTexture(GL_TEXTURE_2D, 0);
        while (glGetError() != GL_NO_ERROR) {
        }
    }

    unsigned int Load(const std::string& path) {
        return textures.LoadTexture(path, GL_LINEAR, GL_LINEAR_MIPMAP_LINEAR, GL_CLAMP_TO_EDGE, GL_REPEAT,
                                    GL_REPLACE);
    }
    unsigned int LoadTga(const std::string& path) {
        return textures.LoadTGATexture(path, GL_NEAREST, GL_LINEAR, GL_REPEAT, GL_CLAMP_TO_EDGE, GL_BLEND);
    }
    static int Parameter(GLenum name) {
        GLint value = 0;
        glGetTexParameteriv(GL_TEXTURE_2D, name, &value);
        return value;
    }
    static int LevelWidth(unsigned int texture, int level) {
        GLint width = 0;
        glBindTexture(GL_TEXTURE_2D, texture);
        glGetTexLevelParameteriv(GL_TEXTURE_2D, level, GL_TEXTURE_WIDTH, &width);
        return width;
    }
    static std::vector<std::uint8_t> Pixels(unsigned int texture) {
        std::vector<std::uint8_t> pixels(64 * 64 * 4);
        glBindTexture(GL_TEXTURE_2D, texture);
        glGetTexImage(GL_TEXTURE_2D, 0, GL_RGBA, GL_UNSIGNED_BYTE, pixels.data());
        return pixels;
    }

    TextureHandler textures;
    TemporaryFile red{test::PlainTga(4, 4, 255, 0, 0), ".tga"};
};

TEST_F(Pictures, BecomeTexturesOnce) {
    const unsigned int first = Load(red.Path());
    EXPECT_TRUE(glIsTexture(first));
    EXPECT_EQ(textures.GetTextureId(red.Path()), first);
    EXPECT_EQ(textures.GetLastError(), 0u);
    EXPECT_EQ(Load(red.Path()), first);
    const auto pixels = Pixels(first);
    EXPECT_THAT(std::vector(pixels.begin(), pixels.begin() + 4), ElementsAre(255, 0, 0, 255));
}

TEST_F(Pictures, AreNotTouchedByALaterLoad) {
    std::optional<TemporaryFile> shortLived(std::in_place, test::PlainTga(4, 4, 0, 255, 0), ".tga");
    const std::string path = shortLived->Path();
    const unsigned int first = Load(path);
    shortLived.reset();
    glBindTexture(GL_TEXTURE_2D, 0);
    while (glGetError() != GL_NO_ERROR) {
    }
    EXPECT_EQ(PrintedBy([&] { EXPECT_EQ(LoadTga(path), first); }), "");
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
    GLint bound = -1;
    glGetIntegerv(GL_TEXTURE_BINDING_2D, &bound);
    EXPECT_EQ(bound, 0);
    glBindTexture(GL_TEXTURE_2D, first);
    EXPECT_EQ(Parameter(GL_TEXTURE_MIN_FILTER), GL_LINEAR_MIPMAP_LINEAR);
    EXPECT_EQ(Parameter(GL_TEXTURE_WRAP_T), GL_REPEAT);
}

TEST_F(Pictures, AreToldApartByTheirPathAsWritten) {
    std::string samePlace = red.Path();
    samePlace.insert(samePlace.rfind('/'), "/.");
    EXPECT_NE(Load(red.Path()), Load(samePlace));
    std::filesystem::path shouted = red.Path();
    shouted.replace_extension(".TGA");
    std::filesystem::copy_file(red.Path(), shouted);
    EXPECT_NE(Load(red.Path()), Load(shouted));
    std::filesystem::remove(shouted);
    EXPECT_EQ(textures.GetTextureId("nothing of that name"), 0xFFFFFFFFu);
}

TEST_F(Pictures, TakeFiltersAndWrapping) {
    LoadTga(red.Path());
    EXPECT_EQ(Parameter(GL_TEXTURE_MAG_FILTER), GL_NEAREST);
    EXPECT_EQ(Parameter(GL_TEXTURE_MIN_FILTER), GL_LINEAR);
    EXPECT_EQ(Parameter(GL_TEXTURE_WRAP_S), GL_REPEAT);
    EXPECT_EQ(Parameter(GL_TEXTURE_WRAP_T), GL_CLAMP_TO_EDGE);
}

TEST_F(Pictures, LeaveTheEnvironmentModulatingAndAnErrorBehind) {
    while (glGetError() != GL_NO_ERROR) {
    }
    Load(red.Path());
    GLint mode = 0;
    glGetTexEnviv(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, &mode);
    EXPECT_EQ(mode, GL_MODULATE);
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_INVALID_ENUM));
}

TEST_F(Pictures, HaveMipmapsUnlessTheyAreTgaOnly) {
    const unsigned int mipmapped = Load(red.Path());
    EXPECT_EQ(LevelWidth(mipmapped, 0), 4);
    EXPECT_EQ(LevelWidth(mipmapped, 1), 2);
    EXPECT_EQ(LevelWidth(mipmapped, 2), 1);
    const TemporaryFile other(test::PlainTga(4, 4, 0, 0, 255), ".tga");
    const unsigned int single = LoadTga(other.Path());
    EXPECT_EQ(LevelWidth(single, 0), 4);
    EXPECT_EQ(LevelWidth(single, 1), 0);
}

TEST_F(Pictures, KeepTheirBottomRowAtTheBottomWhateverTheirWidth) {
    const TemporaryFile file(
        test::TgaBytes(3, 2, 24, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18}), ".tga");
    const auto pixels = Pixels(LoadTga(file.Path()));
    EXPECT_THAT(std::vector(pixels.begin(), pixels.begin() + 24),
                ElementsAre(3, 2, 1, 255, 6, 5, 4, 255, 9, 8, 7, 255, 12, 11, 10, 255, 15, 14, 13, 255, 18,
                            17, 16, 255));
    GLint alignment = 0;
    glGetIntegerv(GL_UNPACK_ALIGNMENT, &alignment);
    EXPECT_EQ(alignment, 4);
}

TEST_F(Pictures, KeepTheirAlpha) {
    const TemporaryFile file(test::TgaBytes(1, 1, 32, {10, 20, 30, 40}), ".tga");
    const auto pixels = Pixels(LoadTga(file.Path()));
    EXPECT_THAT(std::vector(pixels.begin(), pixels.begin() + 4), ElementsAre(30, 20, 10, 40));
}

TEST_F(Pictures, ThatAreMissingGiveAnEmptyTextureAndAreTriedAgain) {
    unsigned int id = 0;
    EXPECT_EQ(PrintedBy([&] { id = Load("nowhere.tga"); }), " error: 1290\n");
    EXPECT_EQ(textures.GetLastError(), 1290u);
    EXPECT_TRUE(glIsTexture(id));
    EXPECT_EQ(LevelWidth(id, 0), 0);
    EXPECT_EQ(textures.GetTextureId("nowhere.tga"), 0xFFFFFFFFu);
    EXPECT_EQ(PrintedBy([&] { EXPECT_NE(LoadTga("nowhere.tga"), id); }), " error: 1290\n");
}

TEST_F(Pictures, LoadAfterOneThatFailed) {
    PrintedBy([&] {
        for (int i = 0; i < 3; ++i)
            Load("nowhere.tga");
    });
    EXPECT_EQ(PrintedBy([&] { Load(red.Path()); }), "");
    EXPECT_EQ(textures.GetLastError(), 0u);
    EXPECT_NE(textures.GetTextureId(red.Path()), TextureHandler::unknownTexture);
}

TEST_F(Pictures, MayBeCutShortAnywhere) {
    const std::vector<std::uint8_t> sound = test::TgaBytes(3, 2, 24, std::vector<std::uint8_t>(18, 200));
    const TemporaryFile file(sound, ".tga");
    PrintedBy([&] {
        for (std::size_t length = 0; length < sound.size(); ++length) {
            file.Write({sound.begin(), sound.begin() + static_cast<std::ptrdiff_t>(length)});
            TextureHandler fresh;
            EXPECT_TRUE(glIsTexture(
                fresh.LoadTGATexture(file.Path(), GL_LINEAR, GL_LINEAR, GL_REPEAT, GL_REPEAT, GL_MODULATE)));
        }
    });
}

TEST_F(Pictures, AreAllDeletedAtOnce) {
    const TemporaryFile blue(test::PlainTga(2, 2, 0, 0, 255), ".tga");
    const std::array ids{Load(red.Path()), LoadTga(blue.Path())};
    textures.DeleteAllTextures();
    for (const unsigned int id : ids)
        EXPECT_FALSE(glIsTexture(id));
    EXPECT_EQ(textures.GetTextureId(red.Path()), TextureHandler::unknownTexture);
    textures.DeleteAllTextures();
}

TEST_F(Pictures, OutliveTheirHandlerAndMoveWithIt) {
    unsigned int id = 0;
    {
        TextureHandler shortLived;
        id = shortLived.LoadTexture(red.Path(), GL_LINEAR, GL_LINEAR, GL_REPEAT, GL_REPEAT, GL_MODULATE);
        textures = std::move(shortLived);
    }
    EXPECT_EQ(textures.GetTextureId(red.Path()), id);
    EXPECT_TRUE(glIsTexture(id));
}

TEST_F(Pictures, AsVolumesAreLoadedAnewEachTime) {
    const auto load = [&](const std::string& path) {
        return textures.LoadTexture3D(path, GL_LINEAR, GL_NEAREST, GL_CLAMP_TO_EDGE, GL_CLAMP_TO_EDGE,
                                      GL_MODULATE);
    };
    const unsigned int first = load(red.Path());
    EXPECT_NE(load(red.Path()), first);
    EXPECT_EQ(textures.GetTextureId(red.Path()), TextureHandler::unknownTexture);
    glBindTexture(GL_TEXTURE_3D, first);
    GLint depth = 0;
    GLint width = 0;
    GLint wrap = 0;
    GLint filter = 0;
    glGetTexLevelParameteriv(GL_TEXTURE_3D, 0, GL_TEXTURE_DEPTH, &depth);
    glGetTexLevelParameteriv(GL_TEXTURE_3D, 0, GL_TEXTURE_WIDTH, &width);
    glGetTexParameteriv(GL_TEXTURE_3D, GL_TEXTURE_WRAP_R, &wrap);
    glGetTexParameteriv(GL_TEXTURE_3D, GL_TEXTURE_MIN_FILTER, &filter);
    EXPECT_EQ(depth, 1);
    EXPECT_EQ(width, 4);
    EXPECT_EQ(wrap, GL_CLAMP_TO_EDGE);
    EXPECT_EQ(filter, GL_NEAREST);
    EXPECT_EQ(PrintedBy([&] { EXPECT_TRUE(glIsTexture(load("nowhere.tga"))); }), "");
    glBindTexture(GL_TEXTURE_3D, 0);
}

}  // namespace
}  // namespace tolvane
