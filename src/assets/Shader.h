#pragma once

#include <string>

namespace tolvane {

// One GLSL program of a vertex and a fragment shader. A program that does not link is reported on the
// console and stays unusable. Free gives the GL objects back; a destructor alone does not.
class Shader {
public:
    // Reads, compiles and links. Throws Exception when a file cannot be read.
    Shader(const std::string& vertexPath, const std::string& fragmentPath);
    Shader(const Shader&) = delete;
    Shader& operator=(const Shader&) = delete;

    // Detaches and deletes what exists; may be called again.
    void Free();

    // Makes the program current.
    void Enable() const;
    // Goes back to the fixed function, whichever program is current.
    static void Disable();

    // Location of a uniform, -1 where the program lacks it or is freed.
    int GetUniformLocation(const std::string& name) const;
    // Set a uniform of the program, which has to be current; a name that it lacks is ignored.
    void SetUniform1i(const std::string& name, int value) const;
    void SetUniform1f(const std::string& name, float x) const;
    void SetUniform2f(const std::string& name, float x, float y) const;
    void SetUniform3f(const std::string& name, float x, float y, float z) const;
    void SetUniform4f(const std::string& name, float x, float y, float z, float w) const;
    // Chooses the texture unit that the next bind is for, counted from 0.
    void SetActiveTexture(int unit) const;

    unsigned int GetProgram() const { return program; }

private:
    void Build(const std::string& vertexSource, const std::string& fragmentSource);

    unsigned int program = 0;
    unsigned int vertexShader = 0;
    unsigned int fragmentShader = 0;
};

}  // namespace tolvane
