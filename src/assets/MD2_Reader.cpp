#include "assets/MD2_Reader.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>
#include <type_traits>
#include <utility>
#include <vector>

#include "assets/MD2_VertexNormals.h"

namespace tolvane {

namespace {

// Vertices and texture coordinates are chosen by 16-bit indices: more of them cannot be reached.
constexpr std::int64_t indexReach = 65536;

// The bytes of a file, read without trust: outside of them there are only zeros.
class FileBytes {
public:
    explicit FileBytes(std::vector<char> content) : bytes(std::move(content)) {}

    // How many bytes there are from offset on.
    std::int64_t HeldFrom(std::int64_t offset) const {
        const auto size = static_cast<std::int64_t>(bytes.size());
        return offset < 0 || offset > size ? 0 : size - offset;
    }

    // How many of count records begin before the end of the file.
    std::int64_t CountBegun(std::int64_t offset, std::int64_t count, std::int64_t recordSize) const {
        return std::clamp<std::int64_t>(count, 0, (HeldFrom(offset) + recordSize - 1) / recordSize);
    }

    template <typename Record>
    void Read(std::int64_t offset, Record* records, std::int64_t count) const {
        static_assert(std::is_trivially_copyable_v<Record>);
        const std::int64_t wanted = count * static_cast<std::int64_t>(sizeof(Record));
        const std::int64_t held = std::min(wanted, HeldFrom(offset));
        if (held > 0)
            std::memcpy(records, bytes.data() + offset, static_cast<std::size_t>(held));
    }

private:
    std::vector<char> bytes;
};

FileBytes ReadFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        std::cerr << "Cannot open the model " << path << std::endl;
        throw std::runtime_error("Error opening file!");
    }
    return FileBytes(std::vector<char>(std::istreambuf_iterator<char>(file), {}));
}

MD2_Header ReadHeader(const FileBytes& file) {
    MD2_Header header;
    file.Read(0, &header, 1);
    if (header.ident != md2Ident)
        throw std::runtime_error("Bad file ident");
    if (header.version != md2Version)
        throw std::runtime_error("Bad file version");
    return header;
}

std::vector<MD2_TexCoord> ReadTexCoords(const FileBytes& file, const MD2_Header& header) {
    const auto count = std::clamp<std::int64_t>(header.numTexCoords, 0, indexReach);
    std::vector<MD2_TexCoord> texCoords(static_cast<std::size_t>(count));
    file.Read(header.offsetTexCoords, texCoords.data(), count);
    return texCoords;
}

std::vector<MD2_Triangle> ReadTriangles(const FileBytes& file, const MD2_Header& header) {
    const std::int64_t count =
        file.CountBegun(header.offsetTriangles, header.numTriangles, sizeof(MD2_Triangle));
    std::vector<MD2_Triangle> triangles(static_cast<std::size_t>(count));
    file.Read(header.offsetTriangles, triangles.data(), count);
    return triangles;
}

MD2_Vertex Unpack(const MD2_PackedVertex& packed, const MD2_Frame& frame) {
    return {static_cast<float>(packed.x) * frame.scale[0] + frame.translate[0],
            static_cast<float>(packed.y) * frame.scale[1] + frame.translate[1],
            static_cast<float>(packed.z) * frame.scale[2] + frame.translate[2],
            packed.normalIndex < md2NormalCount ? packed.normalIndex : 0};
}

MD2_Frame ReadFrame(const FileBytes& file, std::int64_t offset, std::int64_t numVertices) {
    MD2_Frame frame;
    file.Read(offset, frame.scale.data(), 3);
    file.Read(offset + 12, frame.translate.data(), 3);
    file.Read(offset + 24, frame.name.data(), 16);
    frame.packedVertices.resize(static_cast<std::size_t>(numVertices));
    file.Read(offset + 40, frame.packedVertices.data(), numVertices);
    frame.vertices.reserve(frame.packedVertices.size());
    for (const MD2_PackedVertex& packed : frame.packedVertices)
        frame.vertices.push_back(Unpack(packed, frame));
    return frame;
}

std::vector<MD2_Frame> ReadFrames(const FileBytes& file, const MD2_Header& header) {
    const auto claimedVertices = std::max<std::int64_t>(header.numVertices, 0);
    const std::int64_t recordSize =
        40 + claimedVertices * static_cast<std::int64_t>(sizeof(MD2_PackedVertex));
    const std::int64_t count = file.CountBegun(header.offsetFrames, header.numFrames, recordSize);
    std::vector<MD2_Frame> frames;
    frames.reserve(static_cast<std::size_t>(count));
    for (std::int64_t i = 0; i < count; ++i)
        frames.push_back(
            ReadFrame(file, header.offsetFrames + i * recordSize, std::min(claimedVertices, indexReach)));
    return frames;
}

}  // namespace

std::unique_ptr<MD2_Model> MD2_Reader::Load(const std::string& path) const {
    const FileBytes file = ReadFile(path);
    const MD2_Header header = ReadHeader(file);
    return std::make_unique<MD2_Model>(header, ReadTexCoords(file, header), ReadTriangles(file, header),
                                       ReadFrames(file, header));
}

}  // namespace tolvane
