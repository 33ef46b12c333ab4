// PrintRotated: a line of text at an angle, as the tabs at the side edges bear it.
#pragma once

#include "platform/drawing.h"

namespace quill {

// Height of a font's letters in whole pixels, from its size in points.
int CharacterHeight(float PointSize);

// X and Y, in twips, are where the text's upper left corner is before it is turned around that corner. Angle
// in degrees, counter-clockwise; Weight from 100 to 900, 400 as ordinary text.
void PrintRotated(Canvas& Target, std::string_view Text, float X, float Y, std::string_view FontName,
                  float PointSize, int Angle, int Weight, Color ink);

} // namespace quill
