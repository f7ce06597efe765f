#include "figures/Troupe.h"

#include <gtest/gtest.h>
#include <stdlib.h>

#include <array>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <utility>

#include "assets/Gl.h"
#include "figures/MixerLog.h"
#include "support/GlWindow.h"
#include "support/Md2File.h"

namespace tolvane::test {

namespace {

using Bytes = std::vector<std::uint8_t>;
using Groups = std::vector<std::pair<std::string, int>>;

constexpr std::array sampleNames{
    "pawnshot2",       "dying",           "pawnMove",        "pawnSelected0",
    "pawnSelected1",   "pawnAck0",        "pawnAck1",        "rookshot3",
    "rookdeath",       "rookdeath1",      "rookMove",        "rookSelected0",
    "rookAck0",        "rookAck1",        "pawnshot",        "bishopDeath",
    "bishopMove",      "bishopSelected0", "bishopSelected1", "bishopAck0",
    "knightAttack",    "explosionSmall",  "knightMoveShort", "knightStartEnd",
    "knightSelected0", "knightSelected1", "knightAck0",      "kingAttack",
    "kingMove",        "kingSelected0",   "kingAck0",        "kingSelfDestructStart",
    "kingExplode",     "queenMove",       "queenSelected0",  "queenSelected1",
    "queenAck0",       "queenAck1",       "queenAck2",       "queenTransformation",
    "queenDropCan",    "queenUfo",        "queenUfoBeam",    "queenUfoEngage"};

void Write(const std::string& path, const Bytes& bytes) {
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    std::ofstream file(path, std::ios::binary);
    file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}

void Write(const std::string& path, const std::string& text) {
    Write(path, Bytes(text.begin(), text.end()));
}

// Sixteen stereo samples of silence at 44,100 Hz.
Bytes SilentWave() {
    Bytes bytes{'R', 'I', 'F', 'F', 100, 0, 0,   0,   'W', 'A',  'V',  'E', 'f', 'm',  't',
                ' ', 16,  0,   0,   0,   1, 0,   2,   0,   0x44, 0xAC, 0,   0,   0x10, 0xB1,
                2,   0,   4,   0,   16,  0, 'd', 'a', 't', 'a',  64,   0,   0,   0};
    bytes.resize(bytes.size() + 64, 0);
    return bytes;
}

// Two by two pixels, 24 bit.
Bytes GreyPicture() {
    Bytes bytes{0, 0, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0, 2, 0, 2, 0, 24, 0};
    bytes.resize(bytes.size() + 12, 200);
    return bytes;
}

// Loading raises an error or two that nobody asks for, here as in the game.
void DrainGlErrors() {
    while (glGetError() != GL_NO_ERROR) {
    }
}

Bytes Model(const Groups& groups) {
    std::vector<std::string> names;
    for (const auto& [name, count] : groups)
        for (int i = 0; i < count; ++i)
            names.push_back(name + (i < 10 ? "0" : "") + std::to_string(i));
    return SquareModel(names).Bytes();
}

}  // namespace

// The folder that the troupe works in; left and deleted at the end.
class Troupe::Folder {
public:
    explicit Folder(int fightFrames) : former(std::filesystem::current_path()) {
        std::string pattern = (std::filesystem::temp_directory_path() / "tolvane-XXXXXX").string();
        if (!mkdtemp(pattern.data()))
            throw std::runtime_error("no temporary folder at " + pattern);
        path = pattern;
        std::filesystem::current_path(path);

        for (const char* name : sampleNames)
            Write("media/" + std::string(name) + ".wav", SilentWave());
        for (const char* number : {"3", "4", "6", "7"})
            Write("textures/effects/particle" + std::string(number) + ".tga", GreyPicture());
        Write("models/paint.tga", GreyPicture());
        Write("shader/light.vert", "void main() { gl_Position = ftransform(); gl_FrontColor = gl_Color; }\n");
        Write("shader/light.frag", "void main() { gl_FragColor = vec4(0.0, 1.0, 0.0, 1.0); }\n");
        WriteModels(fightFrames);
    }

    ~Folder() {
        std::filesystem::current_path(former);
        std::filesystem::remove_all(path);
    }

private:
    static void WriteModels(int fightFrames) {
        const Groups walker{
            {"stand", 12}, {"run", 10}, {"damage", fightFrames}, {"attack", fightFrames}, {"death", 22}};
        for (const char* name : {"pawn", "rook", "bishop"})
            Write("models/" + std::string(name) + ".md2", Model(walker));
        Write("models/knight.md2", Model({{"stand", 12},
                                          {"run_start", 12},
                                          {"run", 10},
                                          {"run_end", 12},
                                          {"damage", fightFrames},
                                          {"attack", fightFrames},
                                          {"death", 22}}));
        Write("models/queen.md2", Model({{"stand", 12},
                                         {"run_start", 5},
                                         {"run", 10},
                                         {"run_end", 5},
                                         {"damage", fightFrames},
                                         {"attack", 90},
                                         {"death", 22}}));
        Write("models/king.md2", Model({{"stand", 12},
                                        {"run", 10},
                                        {"damage", fightFrames},
                                        {"attack", fightFrames},
                                        {"death", 12},
                                        {"deathII", 12},
                                        {"deathIII", 40}}));
        Write("models/can.md2", Model({{"stand", 4}, {"run", 12}}));
        Write("models/ufo.md2", Model({{"run", 8}}));
    }

    std::filesystem::path former;
    std::filesystem::path path;
};

Vertex FieldPlace(int column, int row) {
    return {-12.25f + static_cast<float>(column) * fieldWidth, 0.0f,
            12.25f - static_cast<float>(row) * fieldWidth};
}

Troupe::Troupe(int fightFrames) : folder(std::make_unique<Folder>(fightFrames)), models(&textures) {
    setenv("SDL_AUDIODRIVER", "dummy", 1);
    PrintedBy([this] {
        sounds = std::make_unique<SoundManager>();
        light = std::make_unique<Shader>("shader/light.vert", "shader/light.frag");
    });
    for (int i = 0; i < 6; ++i)
        cans.push_back(MakeInstance("can"));
    ufo = MakeInstance("ufo");
    ClearMixerLog();
}

Troupe::~Troupe() {
    PrintedBy([this] {
        members.clear();
        instances.clear();
        light->Free();
        textures.DeleteAllTextures();
        sounds.reset();
    });
}

MD2_Instance* Troupe::MakeInstance(const std::string& model) {
    PrintedBy([this, &model] {
        instances.emplace_back(
            models.CreateInstance("models/" + model + ".md2", "models/paint.tga", "models/paint.tga", 0.1f));
    });
    DrainGlErrors();
    return instances.back().get();
}

template <typename Figure, typename... Extras>
Figure& Troupe::Engage(Player player, FigureType type, int column, int row, const std::string& model,
                       Extras... extras) {
    MD2_Instance* const instance = MakeInstance(model);
    std::shared_ptr<Figure> figure;
    PrintedBy([&] {
        figure = std::make_shared<Figure>(column, row, player, type, instance, extras..., light.get(),
                                          &textures, sounds.get());
    });
    DrainGlErrors();
    const Vertex place = FieldPlace(column, row);
    figure->Translate(place.x, place.y, place.z);
    members.push_back({figure.get(), instance, figure});
    return *figure;
}

ChessFigure3D& Troupe::Place(Player player, FigureType type, int column, int row) {
    switch (type) {
        case FigureType::Pawn: return Engage<Pawn3D>(player, type, column, row, "pawn");
        case FigureType::Rook: return Engage<Rook3D>(player, type, column, row, "rook");
        case FigureType::Knight: return PlaceKnight(player, column, row);
        case FigureType::Bishop: return Engage<Bishop3D>(player, type, column, row, "bishop");
        case FigureType::Queen: return PlaceQueen(player, column, row);
        case FigureType::King: return PlaceKing(player, column, row);
    }
    throw std::invalid_argument("no such figure");
}

Queen3D& Troupe::PlaceQueen(Player player, int column, int row) {
    return Engage<Queen3D>(player, FigureType::Queen, column, row, "queen", cans, ufo);
}

Knight3D& Troupe::PlaceKnight(Player player, int column, int row) {
    return Engage<Knight3D>(player, FigureType::Knight, column, row, "knight");
}

King3D& Troupe::PlaceKing(Player player, int column, int row) {
    return Engage<King3D>(player, FigureType::King, column, row, "king");
}

MD2_Instance& Troupe::ModelOf(const ChessFigure3D& figure) const {
    for (const Member& member : members)
        if (member.figure == &figure)
            return *member.model;
    throw std::invalid_argument("not of this troupe");
}

}  // namespace tolvane::test
