#pragma once

#include <QComboBox>
#include <QWidget>

#include "graph/model/Series.h"
#include "graph/render/Curve.h"

namespace zg {

/// The sample of a curve's look: its line across and its marker in the middle.
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

/// A list of line styles, the number of a row being its index, and of line weights, from 1 on.
QComboBox* lineStyleList();
QComboBox* lineWeightList();

/// Fills a list with the characters of a marker's face, as that face shows them; each row has its character
/// as data. The row of the character that was chosen stays.
void fillCharacters(QComboBox& list, const MarkerFont& font);

/// The row of that character becomes current; one that the list does not have is added.
void chooseCharacter(QComboBox& list, const std::string& character);
std::string chosenCharacter(const QComboBox& list);

}  // namespace zg
