#include "workbench/window/MessageBox.h"

#include <QApplication>

#include "workbench/lab/WorkbenchPlatform.h"
#include "workbench/window/ShownText.h"

namespace GleanerSvc::Workbench {

std::unique_ptr<QMessageBox> MakeMessageBox(QMessageBox::Icon eIcon, std::string_view sText,
                                            std::string_view sTitle) {
    auto pBox = std::make_unique<QMessageBox>(eIcon, ShownText(sTitle.empty() ? WorkbenchTitle : sTitle),
                                              ShownText(sText).remove('\r'), QMessageBox::Ok,
                                              QApplication::activeWindow());
    pBox->setTextFormat(Qt::PlainText);
    pBox->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return pBox;
}

void TellTrouble(std::string_view sText) { MakeMessageBox(QMessageBox::Warning, sText)->exec(); }

bool AskYesOrNo(std::string_view sQuestion) {
    const auto pBox = MakeMessageBox(QMessageBox::Question, sQuestion);
    pBox->setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    pBox->setDefaultButton(QMessageBox::No);
    return pBox->exec() == QMessageBox::Yes;
}

} // namespace GleanerSvc::Workbench
