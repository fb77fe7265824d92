#include "workbench/window/StudyTable.h"

#include "workbench/lab/Table.h"

namespace GleanerSvc::Workbench {

namespace {

std::vector<StartColumn<StudyRow>> StudyColumns() {
    return {{"Study", [](const StudyRow& oStudy) { return TextCell(oStudy.sName); }},
            {"Results",
             [](const StudyRow& oStudy) { return oStudy.lStudyID == 0 ? QVariant("") : oStudy.lResults; },
             [](const StudyRow& oStudy) { return QVariant(oStudy.lResults); }},
            {"Created", [](const StudyRow& oStudy) { return TextCell(TextOf(oStudy.dtCreated)); }}};
}

} // namespace

StudyTable::StudyTable(QObject* pParent) : StartTable(StudyColumns(), pParent) {}

void StudyTable::ShowStudies(std::vector<StudyRow> aoStudies) {
    aoStudies.insert(aoStudies.begin(), StudyRow{0, "(all results)", Date(), 0});
    Show(std::move(aoStudies));
}

} // namespace GleanerSvc::Workbench
