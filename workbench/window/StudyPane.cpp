#include "workbench/window/StudyPane.h"

#include <QAbstractButton>
#include <QGridLayout>
#include <QLabel>
#include <QSplitter>
#include <QVBoxLayout>

#include "workbench/lab/AlleleTable.h"
#include "workbench/window/StartTableView.h"
#include "workbench/window/StudyResultTable.h"
#include "workbench/window/StudyTable.h"

namespace GleanerSvc::Workbench {

namespace {

// In two lines: the captions have room at any zoom.
QLayout* ButtonLines(const std::vector<std::vector<QAbstractButton*>>& aapButtons) {
    auto* pGrid = new QGridLayout;
    for (std::size_t nLine = 0; nLine < aapButtons.size(); ++nLine) {
        for (std::size_t nPlace = 0; nPlace < aapButtons[nLine].size(); ++nPlace)
            pGrid->addWidget(aapButtons[nLine][nPlace], static_cast<int>(nLine), static_cast<int>(nPlace));
    }
    return pGrid;
}

QLabel* Heading(const char* szText, QWidget* pOf, QWidget* pParent) {
    auto* pHeading = new QLabel(szText, pParent);
    pHeading->setBuddy(pOf);
    pHeading->setTextFormat(Qt::PlainText);
    pHeading->setMinimumWidth(1); // a long name makes no wide window
    return pHeading;
}

} // namespace

StudyPane::StudyPane(const StartActions& oActions, QWidget* pParent)
    : QWidget(pParent), m_pStudies(new StudyTable(this)), m_pResults(new StudyResultTable(this)) {
    auto* pSplitter = new QSplitter(Qt::Horizontal, this);
    pSplitter->addWidget(MakeStudies(oActions));
    pSplitter->addWidget(MakeResults(oActions));
    pSplitter->setSizes({340, 660}); // in proportion, whatever the width
    pSplitter->setStretchFactor(0, 34);
    pSplitter->setStretchFactor(1, 66);
    pSplitter->setChildrenCollapsible(false);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(pSplitter);
    setFocusProxy(m_pStudyView);
    Connect();
}

QWidget* StudyPane::MakeStudies(const StartActions& oActions) {
    auto* pSide = new QWidget(this);
    auto* pLayout = new QVBoxLayout(pSide);
    pLayout->setContentsMargins(0, 0, 0, 0);
    m_pStudyView = new StartTableView(m_pStudies, "Studies", pSide);
    m_pStudyView->setSelectionMode(QAbstractItemView::SingleSelection);
    pLayout->addWidget(Heading("St&udies:", m_pStudyView, pSide));
    pLayout->addWidget(m_pStudyView);
    pLayout->addLayout(
        ButtonLines({{ActionButton(oActions.pAnalyze, "&Analyze into Study", pSide)},
                     {ActionButton(oActions.pAnalyzeNew, "Analyze into &New Study…", pSide)}}));
    return pSide;
}

QWidget* StudyPane::MakeResults(const StartActions& oActions) {
    auto* pSide = new QWidget(this);
    auto* pLayout = new QVBoxLayout(pSide);
    pLayout->setContentsMargins(0, 0, 0, 0);
    m_pResultView = new StartTableView(m_pResults, "Results", pSide);
    m_pResultView->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_pHeading = Heading("&Results:", m_pResultView, pSide);
    m_pNote = new QLabel(pSide);
    m_pNote->setWordWrap(true);
    m_pNote->setTextFormat(Qt::PlainText);
    m_pNote->setAccessibleName("Note on the results");
    pLayout->addWidget(m_pHeading);
    pLayout->addWidget(m_pResultView);
    pLayout->addWidget(m_pNote);
    pLayout->addLayout(
        ButtonLines({{ActionButton(oActions.pShowResult, "Sho&w Result", pSide),
                      ActionButton(oActions.pExport, "E&xport as CSV…", pSide)},
                     {ActionButton(oActions.pAgainResults, "Analyze Results A&gain", pSide),
                      ActionButton(oActions.pAgainAlleles, "Analyze All&eles Again", pSide)}}));
    return pSide;
}

void StudyPane::Connect() {
    connect(m_pStudyView->selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this] {
        if (fnGuarded) fnGuarded([this] { ShowResults(); });
    });
    const auto fnSelected = [this] {
        ShowNote();
        OnChanged.Raise();
    };
    connect(m_pResultView->selectionModel(), &QItemSelectionModel::selectionChanged, this, fnSelected);
    connect(m_pResultView->selectionModel(), &QItemSelectionModel::currentRowChanged, this, fnSelected);
    connect(m_pResultView, &QAbstractItemView::activated, this, [this] {
        if (CurrentID() != 0) OnPicked.Raise(CurrentID());
    });
}

void StudyPane::Show(const Ref<Lab>& oLab) {
    const StudyRow* pChosen = oLab == m_oLab ? Chosen() : nullptr;
    const std::int32_t lBefore = pChosen ? pChosen->lStudyID : -1;
    m_oLab = oLab;
    auto aoStudies = m_oLab->Studies();
    const std::int32_t lFirst = aoStudies.empty() ? 0 : aoStudies.front().lStudyID;
    m_pStudies->ShowStudies(std::move(aoStudies));
    if (lBefore < 0 || !Choose(lBefore)) Choose(lFirst);
}

const StudyRow* StudyPane::Chosen() const {
    const int nRow = m_pStudyView->currentIndex().row();
    return nRow >= 0 && nRow < m_pStudies->Count() ? &m_pStudies->RowAt(nRow) : nullptr;
}

bool StudyPane::Choose(std::int32_t lStudyID) {
    const auto nRow = m_pStudies->PlaceOf([&](const StudyRow& oRow) { return oRow.lStudyID == lStudyID; });
    if (nRow) m_pStudyView->selectRow(*nRow);
    return nRow.has_value();
}

void StudyPane::ShowResults() {
    const StudyRow* pChosen = Chosen();
    std::vector<ResultRow> aoResults;
    if (m_oLab && pChosen && pChosen->lStudyID != 0) aoResults = m_oLab->ResultsOfStudy(pChosen->lStudyID);
    if (m_oLab && pChosen && pChosen->lStudyID == 0)
        m_oLab->ForEachResult(AllProjectsID, [&](ResultRow&& oRow) { aoResults.push_back(std::move(oRow)); });
    QString sName = pChosen && pChosen->lStudyID != 0 ? QString::fromStdString(pChosen->sName) : "the lab";
    m_pHeading->setText("&Results of " + sName.replace('&', "&&") + ":");
    m_pResults->ShowResults(std::move(aoResults),
                            m_oLab ? PlateNames(*m_oLab) : std::map<std::int32_t, std::string>());
    ShowNote();
    OnChanged.Raise();
}

// The description of the current result may be longer than its column.
void StudyPane::ShowNote() {
    const auto nSelected = m_pResultView->selectionModel()->selectedRows().size();
    const QString sCount = QString::number(m_pResults->Count());
    if (m_pResults->Count() == 0) {
        m_pNote->setText(
            "There are no results yet. Import traces or simulate a plate, then analyze them into "
            "a study.");
    } else if (nSelected == 0) {
        m_pNote->setText(sCount + " results. Analyzing again takes them all, unless some are selected.");
    } else if (nSelected == 1 && CurrentID() != 0) {
        const ResultRow& oResult = m_pResults->RowAt(m_pResultView->currentIndex().row());
        m_pNote->setText("1 of " + sCount +
                         " results is selected: " + QString::fromStdString(oResult.sDescription));
    } else {
        m_pNote->setText(QString::number(nSelected) + " of " + sCount +
                         " results are selected. Analyzing again takes these.");
    }
}

const std::vector<ResultRow>& StudyPane::Results() const { return m_pResults->Rows(); }

std::vector<std::int32_t> StudyPane::MeantIDs() const {
    std::vector<std::int32_t> alIDs;
    for (const int nRow : m_pResultView->SelectedRows()) alIDs.push_back(m_pResults->RowAt(nRow).lResultID);
    if (!alIDs.empty()) return alIDs;
    for (const auto& oResult : m_pResults->Rows()) alIDs.push_back(oResult.lResultID);
    return alIDs;
}

std::int32_t StudyPane::CurrentID() const {
    const int nRow = m_pResultView->currentIndex().row();
    return nRow >= 0 && nRow < m_pResults->Count() ? m_pResults->RowAt(nRow).lResultID : 0;
}

} // namespace GleanerSvc::Workbench
