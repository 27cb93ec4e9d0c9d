#include "shell/FrmSplashScreen.h"

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>

#include "platform/FormParts.h"
#include "processing/Wait.h"
#include "shell/FrmAboutZephyrgraph.h"
#include "shell/Resources.h"

namespace zg {

namespace {

constexpr QSize splashSize(480, 260);
const QColor nightBlue(23, 52, 79);
const QColor paleBlue(200, 216, 230);

QLabel* line(QWidget* parent, const char* name, const char* text, int top) {
    auto* label = named(new QLabel(QString::fromLatin1(text), parent), name);
    QPalette palette;
    palette.setColor(QPalette::WindowText, paleBlue);
    label->setPalette(palette);
    label->move(212, top);
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    return label;
}

}  // namespace

frmSplashScreen::frmSplashScreen(Host& host, std::function<void()> showMain)
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint),
      host_(host),
      showMain_(std::move(showMain)) {
    nameForm(*this, "frmSplashScreen", "Zephyrgraph");
    setWindowIcon(programIcon("zephyrgraph"));
    setFixedSize(splashSize);
    QPalette colours;
    colours.setColor(QPalette::Window, nightBlue);
    setPalette(colours);
    lblVersion = line(this, "lblVersion", programVersion, 138);
    lblLevel = line(this, "lblLevel", programLevel, 160);
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());
}

void frmSplashScreen::run() {
    show();
    WaitMs(host_, splashMilliseconds, [this] { return SplashClicked; });
    if (!SplashClicked) unloadAndShowMain();
}

void frmSplashScreen::unloadAndShowMain() {
    hide();
    showMain_();
}

void frmSplashScreen::mousePressEvent(QMouseEvent*) {
    if (SplashClicked) return;
    SplashClicked = true;
    unloadAndShowMain();
}

void frmSplashScreen::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), nightBlue);
    painter.drawPixmap(QRect(32, 58, 144, 144),
                       programIcon("zephyrgraph").pixmap(QSize(144, 144), devicePixelRatioF()));
    QFont title = font();
    title.setPixelSize(36);
    title.setBold(true);
    painter.setPen(Qt::white);
    // Prevents a wide desktop font from being cut off.
    while (QFontMetrics(title).horizontalAdvance(QStringLiteral("Zephyrgraph")) > 258 &&
           title.pixelSize() > 12)
        title.setPixelSize(title.pixelSize() - 1);
    painter.setFont(title);
    painter.drawText(QRect(208, 74, 262, 60), Qt::AlignLeft | Qt::AlignVCenter,
                     QStringLiteral("Zephyrgraph"));
}

}  // namespace zg
