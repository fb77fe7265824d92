// A button whose caption has room at any zoom.
#pragma once

#include <QPushButton>

namespace GleanerSvc::Workbench {

class StartButton final : public QPushButton {
  public:
    StartButton(const QString& sCaption, QWidget* pParent); // its name is the caption's

    QSize sizeHint() const override;
};

// A caption as it is read out: without the mark of its mnemonic, a colon or dots behind it.
QString SpokenCaption(QString sCaption);

} // namespace GleanerSvc::Workbench
