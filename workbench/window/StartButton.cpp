#include "workbench/window/StartButton.h"

namespace GleanerSvc::Workbench {

StartButton::StartButton(const QString& sCaption, QWidget* pParent) : QPushButton(sCaption, pParent) {
    setAccessibleName(SpokenCaption(sCaption));
}

QSize StartButton::sizeHint() const {
    const int nHeight = fontMetrics().height();
    return QPushButton::sizeHint() + QSize(nHeight, nHeight / 4);
}

QString SpokenCaption(QString sCaption) { return sCaption.remove('&').remove(':').remove("…"); }

} // namespace GleanerSvc::Workbench
