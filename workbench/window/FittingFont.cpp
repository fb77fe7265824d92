#include "workbench/window/FittingFont.h"

#include <QFontMetrics>

namespace GleanerSvc::Workbench {

// Letters are as wide as whole pixels allow, so what fits is found by trying.
QFont FittingFont(const QFont& oFont, const QString& sText, int nWidth) {
    constexpr int Narrowest = 70; // percent
    constexpr int Step = 2;
    QFont oFitting = oFont;
    for (int nStretch = 100; nStretch >= Narrowest; nStretch -= Step) {
        oFitting.setStretch(nStretch);
        if (QFontMetrics(oFitting).size(Qt::TextSingleLine, sText).width() <= nWidth) break;
    }
    return oFitting;
}

} // namespace GleanerSvc::Workbench
