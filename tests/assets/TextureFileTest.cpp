#include "assets/TextureFile.h"

#include <gmock/gmock.h>

#include "assets/Gl.h"
#include "support/TemporaryFile.h"
#include "support/TgaFile.h"

namespace tolvane {
namespace {

using test::TemporaryFile;
using test::TgaBytes;
using ::testing::ElementsAre;
using Bytes = std::vector<std::uint8_t>;

class PictureFile : public ::testing::Test {
protected:
    ~PictureFile() override { glBindTexture(GL_TEXTURE_2D, 0); }

    static Bytes Pixels(unsigned int texture, GLenum format, std::size_t size) {
        Bytes pixels(size);
        glBindTexture(GL_TEXTURE_2D, texture);
        glPixelStorei(GL_PACK_ALIGNMENT, 1);
        glGetTexImage(GL_TEXTURE_2D, 0, format, GL_UNSIGNED_BYTE, pixels.data());
        return pixels;
    }
    static std::string Failure(const TemporaryFile& first, const TemporaryFile& second,
                               const std::string& reason) {
        return "Failed to load Texture (" + first.Path() + ", " + second.Path() + "). Reason: " + reason;
    }

    TextureFile file;
    TemporaryFile color{TgaBytes(2, 1, 24, {1, 2, 3, 4, 5, 6}), ".tga"};
    TemporaryFile colorWithAlpha{TgaBytes(1, 1, 32, {1, 2, 3, 4}), ".tga"};
    TemporaryFile alpha{TgaBytes(2, 1, 8, {70, 80}), ".tga"};
};

TEST_F(PictureFile, JoinsColorAndAlpha) {
    const unsigned int texture = file.Load(color.Path().c_str(), alpha.Path().c_str(), false);
    EXPECT_TRUE(glIsTexture(texture));
    EXPECT_EQ(file.GetTextureId(), texture);
    EXPECT_EQ(file.GetFormat(), static_cast<unsigned int>(GL_RGBA));
    EXPECT_EQ(file.GetWidth(), 2);
    EXPECT_EQ(file.GetHeight(), 1);
    EXPECT_THAT(Pixels(texture, GL_RGBA, 8), ElementsAre(3, 2, 1, 70, 6, 5, 4, 80));
    EXPECT_EQ(file.GetFailure(), "");
}

TEST_F(PictureFile, TakesColorAlone) {
    const unsigned int texture = file.Load(color.Path().c_str(), nullptr, false);
    EXPECT_EQ(file.GetFormat(), static_cast<unsigned int>(GL_RGB));
    EXPECT_THAT(Pixels(texture, GL_RGB, 6), ElementsAre(3, 2, 1, 6, 5, 4));
}

TEST_F(PictureFile, TakesAlphaAlone) {
    const unsigned int texture = file.Load(nullptr, alpha.Path().c_str(), false);
    EXPECT_EQ(file.GetFormat(), static_cast<unsigned int>(GL_ALPHA));
    EXPECT_THAT(Pixels(texture, GL_ALPHA, 2), ElementsAre(70, 80));
}

TEST_F(PictureFile, NeedsNoAlphaFileForColorThatHasIts) {
    const unsigned int texture = file.Load(colorWithAlpha.Path().c_str(), "nowhere.tga", false);
    EXPECT_EQ(file.GetFormat(), static_cast<unsigned int>(GL_RGBA));
    EXPECT_THAT(Pixels(texture, GL_RGBA, 4), ElementsAre(3, 2, 1, 4));
}

TEST_F(PictureFile, BuildsMipmapsWhenAsked) {
    const TemporaryFile large(test::PlainTga(4, 4, 9, 9, 9), ".tga");
    for (const bool mipmaps : {false, true}) {
        glBindTexture(GL_TEXTURE_2D, file.Load(large.Path().c_str(), nullptr, mipmaps));
        GLint width = 0;
        glGetTexLevelParameteriv(GL_TEXTURE_2D, 1, GL_TEXTURE_WIDTH, &width);
        EXPECT_EQ(width, mipmaps ? 2 : 0);
    }
}

TEST_F(PictureFile, AnswersZeroWhenMipmapsCannotBeBuilt) {
    const TemporaryFile empty(TgaBytes(0, 0, 24, {}), ".tga");
    EXPECT_EQ(file.Load(empty.Path().c_str(), nullptr, true), 0u);
    EXPECT_EQ(file.GetTextureId(), 0u);
}

TEST_F(PictureFile, TellsWhyItFails) {
    const TemporaryFile nothing(Bytes{});
    const TemporaryFile wideAlpha(TgaBytes(3, 1, 8, {1, 2, 3}));
    const TemporaryFile tallAlpha(TgaBytes(2, 2, 8, {1, 2, 3, 4}));
    const TemporaryFile shallow(TgaBytes(2, 1, 16, {1, 2, 3, 4}));
    struct Case {
        const TemporaryFile& colorFile;
        const TemporaryFile& alphaFile;
        const char* reason;
    };
    const Case cases[] = {
        {nothing, alpha, "Failed to load RGB file."},
        {color, nothing, "Failed to load alpha file."},
        {shallow, nothing, "Failed to load alpha file."},
        {shallow, alpha, "RGB file not in 8 Bit format!"},
        {color, color, "Alpha file not in 8 bit format."},
        {color, wideAlpha, "Alpha size does not eqal RGB size."},
        {color, tallAlpha, "Alpha size does not eqal RGB size."},
    };
    for (const Case& row : cases) {
        EXPECT_EQ(file.Load(row.colorFile.Path().c_str(), row.alphaFile.Path().c_str(), true), 0u)
            << row.reason;
        EXPECT_EQ(file.GetFailure(), Failure(row.colorFile, row.alphaFile, row.reason));
    }
    EXPECT_EQ(file.Load(nullptr, color.Path().c_str(), true), 0u);
    EXPECT_EQ(file.GetFailure(),
              "Failed to load Texture (, " + color.Path() + "). Reason: Alpha file not in 8 bit format.");
    EXPECT_EQ(file.Load(nullptr, nullptr, true), 0u);
    EXPECT_EQ(file.GetFailure(), "Failed to load Texture (, ). Reason: Failed to load alpha file.");
}

TEST_F(PictureFile, CutsAFailureTextThatIsTooLong) {
    const std::string longPath(3000, 'x');
    EXPECT_EQ(file.Load(longPath.c_str(), nullptr, false), 0u);
    EXPECT_EQ(file.GetFailure().size(), 1999u);
}

TEST_F(PictureFile, ReadsPicturesAsTheyStandInTheFile) {
    TextureImage picture;
    EXPECT_TRUE(file.ReadTGA(picture, color.Path()));
    EXPECT_EQ(picture.width, 2);
    EXPECT_EQ(picture.height, 1);
    EXPECT_EQ(picture.bitsPerPixel, 24);
    EXPECT_THAT(picture.pixels, ElementsAre(1, 2, 3, 4, 5, 6));
    EXPECT_TRUE(file.ReadTGA(picture, alpha.Path()));
    EXPECT_EQ(picture.bitsPerPixel, 8);
    EXPECT_THAT(picture.pixels, ElementsAre(70, 80));
    EXPECT_FALSE(file.ReadTGA(picture, "nowhere.tga"));
}

TEST_F(PictureFile, RefusesOtherKindsOfFile) {
    TextureImage picture;
    for (std::size_t i = 0; i < 12; ++i) {
        Bytes bytes = TgaBytes(2, 1, 24, {1, 2, 3, 4, 5, 6});
        bytes[i] ^= 0x40;
        const TemporaryFile other(bytes);
        EXPECT_FALSE(file.ReadTGA(picture, other.Path())) << i;
    }
}

TEST_F(PictureFile, RefusesFilesThatAreCutShort) {
    TextureImage picture;
    for (const Bytes& sound : {TgaBytes(2, 1, 24, {1, 2, 3, 4, 5, 6}), TgaBytes(2, 1, 8, {70, 80})}) {
        const TemporaryFile cut(sound);
        for (std::size_t length = 0; length < sound.size(); ++length) {
            cut.Write({sound.begin(), sound.begin() + static_cast<std::ptrdiff_t>(length)});
            EXPECT_FALSE(file.ReadTGA(picture, cut.Path())) << length;
        }
    }
}

TEST_F(PictureFile, SpendsNoMemoryOnAPictureThatTheFileCannotHold) {
    Bytes bytes = TgaBytes(65535, 65535, 24, {1, 2, 3});
    TextureImage picture;
    for (const std::uint8_t bits : {8, 24, 32, 255}) {
        bytes[16] = bits;
        const TemporaryFile boasting(bytes);
        EXPECT_FALSE(file.ReadTGA(picture, boasting.Path()));
        EXPECT_EQ(picture.pixels.capacity(), 0u);
    }
}

}  // namespace
}  // namespace tolvane
