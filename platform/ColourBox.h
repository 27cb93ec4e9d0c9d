#pragma once

#include <QPushButton>
#include <functional>

#include "base/Host.h"
#include "base/Style.h"

namespace zg {

/// A box that shows a colour and can be clicked to choose another.
class ColourBox : public QPushButton {
 public:
    explicit ColourBox(Colour colour, QWidget* parent = nullptr);

    Colour colour() const { return colour_; }
    void setColour(Colour colour);

    /// From now on a click on the box, or on the button beside it where there is one, asks for another
    /// colour. The box shows the one that is chosen, then the action gets it; a cancel changes nothing.
    void asks(Host& host, QPushButton* beside, std::function<void(Colour)> chosen);

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    Colour colour_;
};

}  // namespace zg
