// The artwork behind the names of pictures: wells, the plate, its corner.
#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>

#include <string_view>

namespace GleanerSvc::Workbench {

namespace Ink {
inline const QColor Dark{0x69, 0x59, 0x5A};
inline const QColor Amber{0xF8, 0x9D, 0x0A};
inline const QColor Yellow{0xF8, 0xC5, 0x08};
inline const QColor Grey{0xC8, 0xC4, 0xC4};
inline const QColor Board{0xF4, 0xF2, 0xEE};
} // namespace Ink

// Draws the picture of that name into the rectangle, sharp at any size. A name without artwork draws nothing.
void PaintArtwork(QPainter& oPainter, const QRectF& oRect, std::string_view sName);

} // namespace GleanerSvc::Workbench
