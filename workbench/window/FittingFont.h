// A screen's font may be wider than the design's.
#pragma once

#include <QFont>
#include <QString>

namespace GleanerSvc::Workbench {

// The font itself where one line of the text fits into that many pixels; otherwise the widest narrower one in
// which it does, as far as it stays readable.
QFont FittingFont(const QFont& oFont, const QString& sText, int nWidth);

} // namespace GleanerSvc::Workbench
