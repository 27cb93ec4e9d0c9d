#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <string>

#include "base/Host.h"
#include "base/Style.h"

namespace zg {

/// Three buttons that edit a font and its colour, and a sample that shows them. Buttons are named
/// cmdSelectFont, cmdSelectColor and cmdResetToDefaults with a suffix.
class FontChoice : public QWidget {
 public:
    /// Captions of the three buttons, each with an accelerator that is free in the dialog.
    struct Captions {
        const char* font;
        const char* colour;
        const char* reset;
    };

    FontChoice(Host& host, const FontRecord& font, const FontRecord& factory, const std::string& suffix,
               const Captions& captions);

    const FontRecord& font() const { return font_; }

 private:
    void showSample();

    FontRecord font_;
    QLabel* sample_;
};

}  // namespace zg
