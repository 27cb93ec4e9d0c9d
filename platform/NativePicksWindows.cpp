#include <qt_windows.h>

#include <QApplication>
#include <QWidget>
#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <vector>

#include <commdlg.h>

#include "base/Numbers.h"
#include "platform/NativePicks.h"
#include "platform/QtText.h"

namespace zg {

namespace {

constexpr int tenthsOfPoint = 10;
constexpr int pointsOfInch = 72;

HWND handleOf(const QWidget* window) {
    return window == nullptr ? nullptr : reinterpret_cast<HWND>(window->winId());
}

/// Such a dialog disables its owner alone; this disables the program's other windows.
class OthersDisabled {
 public:
    explicit OthersDisabled(const QWidget* owner) {
        for (const QWidget* const window : QApplication::topLevelWidgets())
            if (window != owner && window->isVisible() && EnableWindow(handleOf(window), FALSE) == FALSE)
                disabled_.push_back(handleOf(window));
    }
    ~OthersDisabled() {
        for (const HWND window : disabled_) EnableWindow(window, TRUE);
    }
    OthersDisabled(const OthersDisabled&) = delete;
    OthersDisabled& operator=(const OthersDisabled&) = delete;

 private:
    std::vector<HWND> disabled_;
};

LONG heightOf(int points) {
    const HDC screen = GetDC(nullptr);
    const int height = -MulDiv(points, GetDeviceCaps(screen, LOGPIXELSY), pointsOfInch);
    ReleaseDC(nullptr, screen);
    return height;
}

}  // namespace

/// Not in tests, which draw on no screen.
bool hasNativePicks() { return QGuiApplication::platformName() == QLatin1String("windows"); }

std::optional<Colour> nativeColour(Colour current, QWidget* window) {
    static std::array<COLORREF, 16> own = {};  // colours that the user mixed, until the program ends
    const OthersDisabled others(window);
    const QColor now = toQColor(current);
    CHOOSECOLORW pick = {};
    pick.lStructSize = sizeof pick;
    pick.hwndOwner = handleOf(window);
    pick.rgbResult = RGB(now.red(), now.green(), now.blue());
    pick.lpCustColors = own.data();
    pick.Flags = CC_RGBINIT | CC_ANYCOLOR;
    if (ChooseColorW(&pick) == FALSE) return {};
    return fromQColor(
        QColor(GetRValue(pick.rgbResult), GetGValue(pick.rgbResult), GetBValue(pick.rgbResult)));
}

std::optional<FontRecord> nativeFont(const FontRecord& current, QWidget* window) {
    const OthersDisabled others(window);
    LOGFONTW font = {};
    if (current.size > 0) font.lfHeight = heightOf(current.size);
    font.lfWeight = current.bold ? FW_BOLD : FW_NORMAL;
    font.lfItalic = current.italic ? TRUE : FALSE;
    font.lfCharSet = DEFAULT_CHARSET;
    const std::wstring face = shown(current.name).left(LF_FACESIZE - 1).toStdWString();
    std::copy(face.begin(), face.end(), font.lfFaceName);
    CHOOSEFONTW pick = {};
    pick.lStructSize = sizeof pick;
    pick.hwndOwner = handleOf(window);
    pick.lpLogFont = &font;
    pick.Flags = CF_SCREENFONTS | CF_INITTOLOGFONTSTRUCT | CF_NOVERTFONTS;
    if (ChooseFontW(&pick) == FALSE) return {};
    const double size = static_cast<double>(pick.iPointSize) / tenthsOfPoint;
    // Without a choice in the list of faces, which lacks those of the program's own, the face stays.
    const std::string name = typed(QString::fromWCharArray(font.lfFaceName));
    return FontRecord{current.colour, name.empty() ? current.name : name, toInt16(size),
                      font.lfWeight > FW_MEDIUM, font.lfItalic != FALSE};
}

}  // namespace zg
