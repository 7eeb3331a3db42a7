#pragma once

#include <QPainter>
#include <QRectF>
#include <QString>
#include <vector>

namespace zorik {

// The rectangles in which a text is centred one after another: one, or with an outline four. Only their left
// and upper edges are moved, so the text moves by half of the outline.
std::vector<QRectF> DrTextPlaces(const QRectF& place, int outline);

// Draws a line of text in the painter's font and pen, in the middle of each of these rectangles.
void DrText(QPainter& painter, const QRectF& place, const QString& text, int outline);

}  // namespace zorik
