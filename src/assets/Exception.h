#pragma once

#include <string>

namespace tolvane {

// The root of everything the program itself throws. Thrown by value, caught by reference.
class Exception {
public:
    explicit Exception(const std::string& text) : message(text) {}
    Exception(int number, const std::string& text) : errorNumber(number), message(text) {}

    // Writes number and message to standard error.
    virtual void Print() const;

    int GetErrorNumber() const { return errorNumber; }
    const std::string& GetMessage() const { return message; }

private:
    int errorNumber = -1;
    std::string message;
};

}  // namespace tolvane
