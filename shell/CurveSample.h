#pragma once

#include <QComboBox>
#include <QWidget>

#include "graph/model/Series.h"
#include "graph/render/Curve.h"

namespace zg {

/// The sample of a curve's look: its line from side to side and its marker in the middle.
class CurveSample : public QWidget {
 public:
    CurveSample();

    void show(const Series& series, const MarkerPictures& pictures);

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    Series series_;
    MarkerPictures pictures_;
};

/// A list of line styles, where the index of a row is the style's number, and of line weights, from 1 on.
QComboBox* lineStyleList();
QComboBox* lineWeightList();

/// Fills a list with the characters of a marker's font, in that font; each row has its character as data. The
/// row of the previously selected character remains selected.
void fillCharacters(QComboBox& list, const MarkerFont& font);

/// Selects the row of that character; a missing one is added.
void chooseCharacter(QComboBox& list, const std::string& character);
std::string chosenCharacter(const QComboBox& list);

}  // namespace zg
