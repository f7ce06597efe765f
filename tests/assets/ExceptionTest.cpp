#include "assets/Exception.h"

#include <gmock/gmock.h>

#include "assets/InvalidParameterException.h"

namespace tolvane {
namespace {

std::string PrintOut(const Exception& exception) {
    ::testing::internal::CaptureStderr();
    exception.Print();
    return ::testing::internal::GetCapturedStderr();
}

TEST(Exception, TellsNumberAndMessageOnStandardError) {
    try {
        throw Exception(17, "The door is shut");
    } catch (const Exception& exception) {
        EXPECT_EQ(PrintOut(exception),
                  "An exception has occured: Err.Nr.: 17\n Error message: The door is shut\n");
    }
}

TEST(Exception, HasNumberMinusOneWithoutAnother) {
    const Exception exception("Lost");
    EXPECT_EQ(exception.GetErrorNumber(), -1);
    EXPECT_EQ(PrintOut(exception), "An exception has occured: Err.Nr.: -1\n Error message: Lost\n");
}

TEST(Exception, KeepsTheTextWhenItsSourceChanges) {
    std::string text = "before";
    const Exception exception(3, text);
    text = "after";
    EXPECT_EQ(exception.GetMessage(), "before");
    EXPECT_EQ(exception.GetErrorNumber(), 3);
}

TEST(InvalidParameterException, IsAnExceptionOfTheProgram) {
    const InvalidParameterException plain("off the board");
    const InvalidParameterException numbered(4, "off the board");
    EXPECT_EQ(plain.GetErrorNumber(), -1);
    EXPECT_EQ(numbered.GetErrorNumber(), 4);
    EXPECT_THROW(throw numbered, Exception);
    EXPECT_EQ(PrintOut(numbered), "An exception has occured: Err.Nr.: 4\n Error message: off the board\n");
}

}  // namespace
}  // namespace tolvane
