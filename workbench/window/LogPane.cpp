#include "workbench/window/LogPane.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>

#include "workbench/window/LogTable.h"
#include "workbench/window/StartTableView.h"

namespace GleanerSvc::Workbench {

namespace {

constexpr std::int32_t MostEntries = 100'000;

QWidget* Titled(const char* szTitle, QWidget* pOf, QWidget* pParent) {
    auto* pBox = new QWidget(pParent);
    auto* pTitle = new QLabel(szTitle, pBox);
    pTitle->setBuddy(pOf);
    auto* pLayout = new QVBoxLayout(pBox);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(pTitle);
    pLayout->addWidget(pOf);
    return pBox;
}

} // namespace

LogPane::LogPane(QWidget* pParent)
    : QWidget(pParent), m_pEntries(new LogTable(this)),
      m_pView(new StartTableView(m_pEntries, "Entries of the error log", this)),
      m_pDetails(new QPlainTextEdit(this)) {
    m_pView->setSelectionMode(QAbstractItemView::SingleSelection);
    m_pDetails->setReadOnly(true);
    m_pDetails->setTabChangesFocus(true);
    m_pDetails->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_pDetails->setAccessibleName("Details of the entry");
    auto* pSplitter = new QSplitter(Qt::Vertical, this);
    pSplitter->addWidget(Titled("&Entries, the latest first:", m_pView, pSplitter));
    pSplitter->addWidget(Titled("&Details:", m_pDetails, pSplitter));
    pSplitter->setStretchFactor(0, 2);
    pSplitter->setStretchFactor(1, 1);
    pSplitter->setChildrenCollapsible(false);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(pSplitter);
    connect(m_pView->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this] { ShowDetails(); });
    ShowDetails();
}

void LogPane::Show(Lab& oLab) {
    auto aoEntries = oLab.LogEntries(MostEntries);
    std::reverse(aoEntries.begin(), aoEntries.end());
    m_pEntries->Show(std::move(aoEntries));
    if (m_pEntries->Count() > 0) m_pView->selectRow(0);
    ShowDetails();
}

void LogPane::ShowDetails() {
    const int nRow = m_pView->currentIndex().row();
    const bool bThere = nRow >= 0 && nRow < m_pEntries->Count();
    m_pDetails->setPlainText(bThere                     ? LogTable::Details(m_pEntries->RowAt(nRow))
                             : m_pEntries->Count() == 0 ? "The error log is empty."
                                                        : "");
}

} // namespace GleanerSvc::Workbench
