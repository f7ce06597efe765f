#include "assets/Shader.h"

#include <array>
#include <cstddef>
#include <cstdio>
#include <iostream>
#include <memory>
#include <optional>

#include "assets/Exception.h"
#include "assets/Gl.h"

namespace tolvane {

namespace {

constexpr GLsizei logSize = 4096;
using InfoLog = std::array<char, logSize>;

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

std::optional<std::string> ReadSource(const std::string& path) {
    const std::unique_ptr<std::FILE, CloseFile> file(std::fopen(path.c_str(), "r"));
    if (!file) {
        std::cout << "*** Error: Cannot open shader file!\n";
        return std::nullopt;
    }
    std::string source;
    std::array<char, 4096> part{};
    while (const std::size_t size = std::fread(part.data(), 1, part.size(), file.get()))
        source.append(part.data(), size);
    return source;
}

bool Succeeded(GLhandleARB object, GLenum status) {
    GLint result = 0;
    glGetObjectParameterivARB(object, status, &result);
    return result != 0;
}

void FetchLog(GLhandleARB object, InfoLog& log) {
    glGetInfoLogARB(object, logSize, nullptr, log.data());
}

GLhandleARB Compile(GLenum kind, const std::string& source, InfoLog& log) {
    const GLhandleARB shader = glCreateShaderObjectARB(kind);
    const char* text = source.c_str();
    glShaderSourceARB(shader, 1, &text, nullptr);
    glCompileShaderARB(shader);
    if (!Succeeded(shader, GL_OBJECT_COMPILE_STATUS_ARB))
        FetchLog(shader, log);
    return shader;
}

void PrintLog(const InfoLog& log) {
    std::cout << "*** Error: " << log.data() << "\n\n";
}

}  // namespace

Shader::Shader(const std::string& vertexPath, const std::string& fragmentPath) {
    const std::optional<std::string> vertexSource = ReadSource(vertexPath);
    if (!vertexSource)
        throw Exception("Unable to read VertexShader");
    const std::optional<std::string> fragmentSource = ReadSource(fragmentPath);
    if (!fragmentSource)
        throw Exception("Unable to read FragmentShader");
    Build(*vertexSource, *fragmentSource);
}

void Shader::Build(const std::string& vertexSource, const std::string& fragmentSource) {
    InfoLog vertexLog{};
    InfoLog fragmentLog{};
    InfoLog linkLog{};
    bool linked = false;
    if (glCreateShaderObjectARB) {
        vertexShader = Compile(GL_VERTEX_SHADER_ARB, vertexSource, vertexLog);
        fragmentShader = Compile(GL_FRAGMENT_SHADER_ARB, fragmentSource, fragmentLog);
        program = glCreateProgramObjectARB();
        glAttachObjectARB(program, vertexShader);
        glAttachObjectARB(program, fragmentShader);
        glLinkProgramARB(program);
        linked = Succeeded(program, GL_OBJECT_LINK_STATUS_ARB);
        if (!linked)
            FetchLog(program, linkLog);
    }
    if (linked) {
        std::cout << "* Shader compiled successfull\n";
        return;
    }
    PrintLog(vertexLog);
    PrintLog(fragmentLog);
    PrintLog(linkLog);
}

void Shader::Free() {
    std::cout << "!!! freeshader called !!!\n";
    for (unsigned int* shader : {&vertexShader, &fragmentShader}) {
        if (*shader == 0)
            continue;
        glDetachObjectARB(program, *shader);
        glDeleteObjectARB(*shader);
        *shader = 0;
    }
    if (program == 0)
        return;
    glDeleteObjectARB(program);
    program = 0;
}

void Shader::Enable() const {
    if (glUseProgramObjectARB)
        glUseProgramObjectARB(program);
}

void Shader::Disable() {
    if (glUseProgramObjectARB)
        glUseProgramObjectARB(0);
}

int Shader::GetUniformLocation(const std::string& name) const {
    return program == 0 ? -1 : glGetUniformLocationARB(program, name.c_str());
}

void Shader::SetUniform1i(const std::string& name, int value) const {
    if (const int location = GetUniformLocation(name); location >= 0)
        glUniform1iARB(location, value);
}

void Shader::SetUniform1f(const std::string& name, float x) const {
    if (const int location = GetUniformLocation(name); location >= 0)
        glUniform1fARB(location, x);
}

void Shader::SetUniform2f(const std::string& name, float x, float y) const {
    if (const int location = GetUniformLocation(name); location >= 0)
        glUniform2fARB(location, x, y);
}

void Shader::SetUniform3f(const std::string& name, float x, float y, float z) const {
    if (const int location = GetUniformLocation(name); location >= 0)
        glUniform3fARB(location, x, y, z);
}

void Shader::SetUniform4f(const std::string& name, float x, float y, float z, float w) const {
    if (const int location = GetUniformLocation(name); location >= 0)
        glUniform4fARB(location, x, y, z, w);
}

void Shader::SetActiveTexture(int unit) const {
    if (glActiveTextureARB)
        glActiveTextureARB(GL_TEXTURE0 + static_cast<GLenum>(unit));
}

}  // namespace tolvane
