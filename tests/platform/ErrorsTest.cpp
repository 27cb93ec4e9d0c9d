#include "platform/Errors.h"

#include <gtest/gtest.h>

#include <QPushButton>
#include <stdexcept>

#include "base/RunTimeError.h"
#include "tests/support/TestHost.h"

namespace zg {
namespace {

TEST(Errors, ARunTimeErrorIsShownOnceWithNumberAndDescription) {
    TestHost host;
    host.boxAnswers = {BoxAnswer::Ok};
    guarded(host, [] { raise(ErrorNumber::TypeMismatch); })();
    ASSERT_EQ(host.boxes.size(), 1U);
    EXPECT_EQ(host.boxes[0].title, "Zephyrgraph");
    EXPECT_EQ(host.boxes[0].text, "Run-time error '13':\n\nType mismatch");
    EXPECT_EQ(host.boxes[0].buttons, BoxButtons::Ok);
}

TEST(Errors, OtherFailuresAreShownToo) {
    TestHost host;
    host.boxAnswers = {BoxAnswer::Ok, BoxAnswer::Ok};
    guarded(host, [] { throw std::runtime_error("what went wrong"); })();
    guarded(host, [] { throw 1; })();
    EXPECT_EQ(host.boxes[0].text, "Run-time error '51':\n\nInternal error: what went wrong");
    EXPECT_EQ(host.boxes[1].text, "Run-time error '51':\n\nInternal error");
}

TEST(Errors, AHandlerOnASignalIsInsideTheBoundary) {
    TestHost host;
    host.boxAnswers = {BoxAnswer::Ok};
    QPushButton button;
    int presses = 0;
    QObject::connect(&button, &QPushButton::clicked, &button, guarded(host, [&presses] {
        ++presses;
        raise(ErrorNumber::Overflow);
    }));
    button.click();
    EXPECT_EQ(presses, 1);
    EXPECT_EQ(host.boxes[0].text, "Run-time error '6':\n\nOverflow");
}

}  // namespace
}  // namespace zg
