// A question of the start window: a form, and a button that accepts it once what is needed is filled in. It
// waits for no answer: what follows is called when the operator accepts.
#pragma once

#include <QDialog>

#include <functional>
#include <string>
#include <vector>

class QComboBox;
class QFormLayout;
class QLineEdit;
class QPushButton;

namespace GleanerSvc::Workbench {

class StartDialog final : public QDialog {
  public:
    // In the parent's font; ends with the operator's answer.
    StartDialog(const char* szTitle, const char* szAccept, QWidget& oParent);

    // Captions carry the mnemonic, as in "Pro&ject:".
    QLineEdit* AddName(const char* szCaption, const QString& sHint = "");
    QLineEdit* AddFile(const char* szCaption, const char* szBrowse, std::function<std::string()> fnChoose);
    QComboBox* AddChoice(const char* szCaption, const std::vector<std::string>& asChoices);
    QComboBox* AddNameOf(const char* szCaption, const std::vector<std::string>& asKnown); // or a new one
    void AddWide(QWidget* pWidget);
    void AddRow(const char* szCaption, QWidget* pWidget);

    // Until it holds the dialog cannot be accepted. Asked again at each change of a field.
    void Require(std::function<bool()> fnHolds);
    void Check();
    // Opens it, and calls this when it is accepted.
    void Ask(std::function<void()> fnAccepted);

  private:
    void AddButtons();

    QFormLayout* m_pForm;
    QString m_sAccept;
    QPushButton* m_pAccept = nullptr; // until it is asked
    std::vector<std::function<bool()>> m_afnRequired;
};

// The name without blanks around it.
std::string NameIn(const QLineEdit& oEdit);

} // namespace GleanerSvc::Workbench
