#include "support/Md2File.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <type_traits>

namespace tolvane::test {

namespace {

constexpr std::size_t skinNameSize = 64;
constexpr std::size_t frameNameSize = 16;
constexpr std::size_t frameHeadSize = 24 + frameNameSize;

template <typename Record>
void Append(std::vector<std::uint8_t>& bytes, const Record& record) {
    static_assert(std::is_trivially_copyable_v<Record>);
    const std::size_t end = bytes.size();
    bytes.resize(end + sizeof(Record));
    std::memcpy(bytes.data() + end, &record, sizeof(Record));
}

template <typename Record>
void AppendAll(std::vector<std::uint8_t>& bytes, const std::vector<Record>& records) {
    for (const Record& record : records)
        Append(bytes, record);
}

void AppendName(std::vector<std::uint8_t>& bytes, const std::string& name, std::size_t size) {
    const std::size_t length = std::min(name.size(), size);
    bytes.insert(bytes.end(), name.begin(), name.begin() + static_cast<std::ptrdiff_t>(length));
    bytes.insert(bytes.end(), size - length, 0);
}

std::int32_t SizeOf(std::size_t size) {
    return static_cast<std::int32_t>(size);
}

}  // namespace

MD2_Header Md2File::Header() const {
    const std::size_t numVertices = frames.empty() ? 0 : frames.front().vertices.size();
    MD2_Header header;
    header.ident = md2Ident;
    header.version = md2Version;
    header.skinWidth = skinWidth;
    header.skinHeight = skinHeight;
    header.frameSize = SizeOf(frameHeadSize + numVertices * sizeof(MD2_PackedVertex));
    header.numSkins = SizeOf(skins.size());
    header.numVertices = SizeOf(numVertices);
    header.numTexCoords = SizeOf(texCoords.size());
    header.numTriangles = SizeOf(triangles.size());
    header.numGlCommands = SizeOf(commands.size());
    header.numFrames = SizeOf(frames.size());
    header.offsetSkins = SizeOf(sizeof(MD2_Header));
    header.offsetTexCoords = header.offsetSkins + SizeOf(skins.size() * skinNameSize);
    header.offsetTriangles = header.offsetTexCoords + SizeOf(texCoords.size() * sizeof(MD2_TexCoord));
    header.offsetFrames = header.offsetTriangles + SizeOf(triangles.size() * sizeof(MD2_Triangle));
    header.offsetGlCommands = header.offsetFrames + header.frameSize * header.numFrames;
    header.offsetEnd = header.offsetGlCommands + SizeOf(commands.size() * sizeof(std::int32_t));
    return header;
}

std::vector<std::uint8_t> Md2File::Bytes() const {
    std::vector<std::uint8_t> bytes;
    Append(bytes, Header());
    for (const std::string& skin : skins)
        AppendName(bytes, skin, skinNameSize);
    AppendAll(bytes, texCoords);
    AppendAll(bytes, triangles);
    for (const Md2FileFrame& frame : frames) {
        Append(bytes, frame.scale);
        Append(bytes, frame.translate);
        AppendName(bytes, frame.name, frameNameSize);
        AppendAll(bytes, frame.vertices);
    }
    AppendAll(bytes, commands);
    return bytes;
}

Md2File SquareModel(const std::vector<std::string>& frameNames) {
    constexpr std::uint8_t towardsViewer = 5;  // (0, 0, 1) in the table of normals
    Md2File model;
    model.texCoords = {{0, 64}, {0, 0}, {64, 0}, {64, 64}};
    model.triangles = {{{0, 1, 2}, {0, 1, 2}}, {{0, 2, 3}, {0, 2, 3}}};
    for (const std::string& name : frameNames) {
        Md2FileFrame frame;
        frame.name = name;
        frame.vertices = {{0, 0, 0, towardsViewer},
                          {0, 10, 0, towardsViewer},
                          {10, 10, 0, towardsViewer},
                          {10, 0, 0, towardsViewer}};
        frame.translate = {-5.0f, static_cast<float>(model.frames.size()) - 5.0f, 0.0f};
        model.frames.push_back(frame);
    }
    return model;
}

}  // namespace tolvane::test
