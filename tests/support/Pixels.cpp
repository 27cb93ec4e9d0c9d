#include "tests/support/Pixels.h"

#include <QPainter>
#include <algorithm>
#include <filesystem>
#include <map>
#include <string>

#include "platform/QtText.h"

namespace {

constexpr int squareSide = 7;

/// The running test's name, usable as a file name: "/" and blanks are replaced.
std::string pathOf(const char* what) {
    const ::testing::TestInfo* test = ::testing::UnitTest::GetInstance()->current_test_info();
    std::string name = test == nullptr ? "test" : std::string(test->test_suite_name()) + "." + test->name();
    std::replace(name.begin(), name.end(), '/', '_');
    const std::filesystem::path folder = std::filesystem::path(ZG_BINARY_DIR) / "pictures";
    std::filesystem::create_directories(folder);
    return (folder / (name + "." + what + ".png")).generic_string();
}

std::string left(const QImage& picture, const char* what) {
    const std::string path = pathOf(what);
    return picture.save(QString::fromStdString(path), "PNG") ? path : path + " (could not be written)";
}

/// The expected picture so far, by the path under which it is kept: one test may probe a picture often.
QImage& expectedSoFar(const QImage& picture) {
    static std::map<std::string, QImage> expected;
    QImage& found = expected[pathOf("expected")];
    if (found.size() != picture.size()) found = picture.convertToFormat(QImage::Format_RGB32);
    return found;
}

}  // namespace

::testing::AssertionResult pixelIs(const QImage& picture, int x, int y, zg::Colour wanted) {
    const zg::Colour found = zg::fromQColor(picture.pixelColor(x, y));
    if (found == wanted) return ::testing::AssertionSuccess();
    QImage& expected = expectedSoFar(picture);
    QPainter painter(&expected);
    painter.fillRect(x - squareSide / 2, y - squareSide / 2, squareSide, squareSide, zg::toQColor(wanted));
    painter.end();
    return ::testing::AssertionFailure()
           << "pixel (" << x << ", " << y << ") is " << ::testing::PrintToString(found) << ", expected "
           << ::testing::PrintToString(wanted) << "\n  picture:  " << left(picture, "picture")
           << "\n  expected: " << left(expected, "expected");
}

::testing::AssertionResult samePicture(const QImage& picture, const QImage& wanted) {
    const QImage found = picture.convertToFormat(QImage::Format_RGB32);
    const QImage expected = wanted.convertToFormat(QImage::Format_RGB32);
    if (found == expected) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "the pictures differ\n  picture:  " << left(found, "picture")
                                         << "\n  expected: " << left(expected, "expected");
}

::testing::AssertionResult showsIn(const QImage& picture, bool holds, const char* wanted) {
    if (holds) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure()
           << "expected: " << wanted << "\n  picture:  " << left(picture, "picture");
}
