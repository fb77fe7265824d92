#include "workbench/window/StartDialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QVBoxLayout>

#include <algorithm>

#include "workbench/window/StartButton.h"

namespace GleanerSvc::Workbench {

namespace {

constexpr int LongestName = 60; // characters: file names and trace files have room for them in any script
constexpr int NameWidth = 40;   // of a field, in characters

} // namespace

StartDialog::StartDialog(const char* szTitle, const char* szAccept, QWidget& oParent)
    : QDialog(&oParent), m_pForm(new QFormLayout), m_sAccept(szAccept) {
    setWindowTitle(szTitle);
    setAccessibleName(szTitle);
    setAttribute(Qt::WA_DeleteOnClose);
    m_pForm->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addLayout(m_pForm);
}

// Made last, so that they stand last in the order of the Tab key.
void StartDialog::AddButtons() {
    auto* pButtons = new QDialogButtonBox(this);
    m_pAccept = new StartButton(m_sAccept, pButtons);
    m_pAccept->setDefault(true);
    auto* pCancel = new StartButton("&Cancel", pButtons);
    pCancel->setAutoDefault(false); // Enter never cancels
    pButtons->addButton(m_pAccept, QDialogButtonBox::AcceptRole);
    pButtons->addButton(pCancel, QDialogButtonBox::RejectRole);
    layout()->addWidget(pButtons);
    connect(pButtons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(pButtons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void StartDialog::AddRow(const char* szCaption, QWidget* pWidget) {
    pWidget->setAccessibleName(SpokenCaption(szCaption));
    pWidget->setMinimumWidth(fontMetrics().averageCharWidth() * NameWidth);
    m_pForm->addRow(szCaption, pWidget);
}

void StartDialog::AddWide(QWidget* pWidget) { m_pForm->addRow(pWidget); }

QLineEdit* StartDialog::AddName(const char* szCaption, const QString& sHint) {
    auto* pEdit = new QLineEdit(this);
    pEdit->setMaxLength(LongestName);
    pEdit->setPlaceholderText(sHint);
    AddRow(szCaption, pEdit);
    connect(pEdit, &QLineEdit::textChanged, this, [this] { Check(); });
    return pEdit;
}

QLineEdit* StartDialog::AddFile(const char* szCaption, const char* szBrowse,
                                std::function<std::string()> fnChoose) {
    auto* pEdit = new QLineEdit(this);
    AddRow(szCaption, pEdit);
    auto* pBrowse = new StartButton(szBrowse, this);
    pBrowse->setAutoDefault(false);
    m_pForm->addRow("", pBrowse);
    connect(pEdit, &QLineEdit::textChanged, this, [this] { Check(); });
    connect(pBrowse, &QAbstractButton::clicked, this, [pEdit, fnChoose = std::move(fnChoose)] {
        const std::string sFile = fnChoose();
        if (!sFile.empty()) pEdit->setText(QString::fromStdString(sFile));
    });
    return pEdit;
}

QComboBox* StartDialog::AddChoice(const char* szCaption, const std::vector<std::string>& asChoices) {
    auto* pCombo = new QComboBox(this);
    for (const auto& sChoice : asChoices) pCombo->addItem(QString::fromStdString(sChoice));
    AddRow(szCaption, pCombo);
    return pCombo;
}

QComboBox* StartDialog::AddNameOf(const char* szCaption, const std::vector<std::string>& asKnown) {
    QComboBox* pCombo = AddChoice(szCaption, asKnown);
    pCombo->setEditable(true);
    pCombo->setInsertPolicy(QComboBox::NoInsert);
    pCombo->lineEdit()->setMaxLength(LongestName);
    connect(pCombo, &QComboBox::editTextChanged, this, [this] { Check(); });
    return pCombo;
}

void StartDialog::Require(std::function<bool()> fnHolds) { m_afnRequired.push_back(std::move(fnHolds)); }

void StartDialog::Check() {
    if (!m_pAccept) return; // the form is still being made
    m_pAccept->setEnabled(std::all_of(m_afnRequired.begin(), m_afnRequired.end(),
                                      [](const auto& fnHolds) { return fnHolds(); }));
}

void StartDialog::Ask(std::function<void()> fnAccepted) {
    AddButtons();
    Check();
    connect(this, &QDialog::accepted, parent(), std::move(fnAccepted));
    open();
}

std::string NameIn(const QLineEdit& oEdit) { return oEdit.text().trimmed().toStdString(); }

} // namespace GleanerSvc::Workbench
