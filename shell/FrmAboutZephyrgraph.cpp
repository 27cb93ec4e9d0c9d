#include "shell/FrmAboutZephyrgraph.h"

#include <QLabel>
#include <QVBoxLayout>

#include "platform/Captions.h"
#include "platform/FormParts.h"
#include "settings/Settings.h"
#include "shell/Resources.h"

namespace zg {

namespace {

const char* const credits =
    "Zephyrgraph draws wind roses for people who work with air quality and meteorology.\n\n"
    "It is free software under the MIT licence, made by the Zephyrgraph developers. Its window is built on "
    "the Qt "
    "toolkit. The sample of Lovett, New York, holds public data of the US Environmental Protection Agency.";

QLabel* line(const char* name, const QString& text) { return named(new QLabel(text), name); }

}  // namespace

frmAboutZephyrgraph::frmAboutZephyrgraph(QWidget* parent) : QDialog(parent) {
    nameForm(*this, "frmAboutZephyrgraph", "About Zephyrgraph");
    auto* picture = new QLabel;
    picture->setPixmap(programIcon("zephyrgraph").pixmap(QSize(72, 72), devicePixelRatioF()));
    QLabel* title = line("lblTitle", QStringLiteral("Zephyrgraph"));
    QFont large = title->font();
    large.setPointSizeF(large.pointSizeF() * 1.8);
    large.setBold(true);
    title->setFont(large);
    QLabel* text = line("lblCredits", QString::fromLatin1(credits));
    text->setWordWrap(true);
    text->setMinimumWidth(digitsWide(*text, 45));
    chkDebug = named(new QCheckBox(QStringLiteral("&Debug")), "chkDebug");
    chkDebug->setChecked(settings.DebugFlag);
    cmdOK = namedButton("OK", "cmdOK");
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);

    auto* words = new QVBoxLayout;
    words->setSpacing(4);
    words->addWidget(title);
    words->addWidget(line("lblVersion", QString::fromLatin1(programVersion)));
    words->addWidget(line("lblLevel", QString::fromLatin1(programLevel)));
    words->addSpacing(8);
    words->addWidget(text);
    words->addStretch();
    auto* top = new QHBoxLayout;
    top->setSpacing(18);
    top->addWidget(picture, 0, Qt::AlignTop);
    top->addLayout(words, 1);
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(chkDebug);
    bottom->addStretch();
    bottom->addWidget(cmdOK);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(18, 18, 18, 14);
    all->setSpacing(14);
    all->addLayout(top);
    all->addLayout(bottom);
    all->setSizeConstraint(QLayout::SetFixedSize);
    cmdOK->setFocus();
}

frmAboutZephyrgraph::~frmAboutZephyrgraph() { settings.DebugFlag = chkDebug->isChecked(); }

}  // namespace zg
