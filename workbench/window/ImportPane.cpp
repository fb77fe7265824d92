#include "workbench/window/ImportPane.h"

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

#include "workbench/window/ImportTable.h"
#include "workbench/window/StartTableView.h"

namespace GleanerSvc::Workbench {

ImportPane::ImportPane(const StartActions& oActions, QWidget* pParent)
    : QWidget(pParent), m_pFiles(new ImportTable(this)),
      m_pView(new StartTableView(m_pFiles, "Files of the last import", this)), m_pSummary(new QLabel(this)) {
    m_pView->setSelectionMode(QAbstractItemView::SingleSelection);
    auto* pHeading = new QLabel("Files &of the last import:", this);
    pHeading->setBuddy(m_pView);
    m_pSummary->setAccessibleName("Summary of the last import");
    m_pSummary->setWordWrap(true);
    m_pSummary->setTextFormat(Qt::PlainText);
    connect(m_pView->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this] { ShowSummary(); });
    auto* pButtons = new QHBoxLayout;
    pButtons->addWidget(ActionButton(oActions.pImport, "I&mport Traces…", this));
    pButtons->addWidget(ActionButton(oActions.pImportKit, "Import &Kit…", this));
    pButtons->addWidget(ActionButton(oActions.pSimulate, "Simulate &Plate…", this));
    pButtons->addStretch();
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(pHeading);
    pLayout->addWidget(m_pView);
    pLayout->addWidget(m_pSummary);
    pLayout->addLayout(pButtons);
    Show({});
}

void ImportPane::Show(std::vector<ImportedFile> aoFiles) {
    m_pFiles->Show(std::move(aoFiles));
    ShowSummary();
}

// The reason of the current refusal may be longer than its column.
void ImportPane::ShowSummary() {
    const int nRow = m_pView->currentIndex().row();
    const bool bThere = nRow >= 0 && nRow < m_pFiles->Count();
    const QString sReason = bThere ? QString::fromStdString(m_pFiles->RowAt(nRow).sReason) : "";
    m_pSummary->setText(sReason.isEmpty() ? Summary() : Summary() + "\n" + sReason);
}

const std::vector<ImportedFile>& ImportPane::Files() const { return m_pFiles->Rows(); }

QString ImportPane::Summary() const {
    if (Files().empty()) return "Trace files and folders of them can also be dropped onto this window.";
    const auto fnCount = [&](FileOutcome eOutcome) {
        return std::count_if(Files().begin(), Files().end(),
                             [&](const ImportedFile& oFile) { return oFile.eOutcome == eOutcome; });
    };
    return QString("%1 of %2 files imported, %3 there already, %4 refused.")
        .arg(fnCount(FileOutcome::Imported))
        .arg(Files().size())
        .arg(fnCount(FileOutcome::WasThere))
        .arg(fnCount(FileOutcome::Refused));
}

} // namespace GleanerSvc::Workbench
