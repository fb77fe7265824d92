// The lab: one database that holds projects, plates, samples with their traces, results, studies, kits,
// parameters, settings and the error log.
//
// One thread uses a lab: the one that opened it. One program at a time holds its file. Each write is on disk
// when its call returns, unless a Transaction is open; then all or none of them are, when that one is
// committed. What the lab or its database refuses fails with LabError, which names the file and what was
// wrong. Times that the lab gives are local wall time, to the second.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "models/GridTypeRecord.h"
#include "pagebind/DataStore.h"
#include "workbench/store/LabError.h"
#include "workbench/store/RecordMarks.h"
#include "workbench/store/Rows.h"
#include "workbench/traces/PanelTables.h"

namespace GleanerSvc::Workbench {

class Database;

// Reading takes no right to write, so it works while another program fills the lab; whatever would change the
// lab then fails.
enum class LabMode { Reading, Existing, CreateIfMissing };

class Lab {
  public:
    // A file that is no lab, one of a newer version, one in a folder that cannot be written, or one that
    // another program has open fails, naming it. An older version is brought up to date in one transaction.
    // Needs no application object of Qt.
    static Ref<Lab> Open(const std::filesystem::path& oFile, LabMode eMode);
    Lab(const Lab&) = delete;
    Lab& operator=(const Lab&) = delete;
    ~Lab();

    const std::filesystem::path& File() const;

    // All of what is written while it lives, or nothing of it. Transactions nest: an inner one that is taken
    // back leaves the outer one as it was before, and the outermost puts all on disk. Log entries stay, also
    // when the transaction around them is taken back.
    class Transaction {
      public:
        explicit Transaction(Lab& oLab);
        Transaction(const Transaction&) = delete;
        Transaction& operator=(const Transaction&) = delete;
        ~Transaction(); // takes everything back unless it was committed
        void Commit();

      private:
        Lab& m_oLab;
        bool m_bCommitted = false;
    };

    // Names are unique without regard to case among projects, studies and kits, and among the plates of one
    // project. Blanks at their end are cut. Adding a name that is there, or an empty one, fails; finding one
    // that is not there yields nothing. A project cannot be called what stands for all: InputError.
    std::int32_t AddProject(std::string_view sName);
    std::optional<ProjectRow> FindProject(std::string_view sName);
    std::optional<ProjectRow> FindProject(std::int32_t lProjectID);
    std::vector<ProjectRow> Projects(); // by name
    std::int32_t AddPlate(std::int32_t lProjectID, std::string_view sName);
    std::optional<PlateRow> FindPlate(std::int32_t lProjectID, std::string_view sName);
    std::vector<PlateRow> Plates(std::int32_t lProjectID); // by name

    // A kit: its panel table and its bin table, read by ReadPanelTables, whose InputError goes to the caller.
    // The same kit again replaces the tables and is the newest then. Yields how many panels it has.
    std::size_t SaveKit(std::string_view sName, const TableText& oPanels, const TableText& oBins);
    std::vector<Panel> Panels(); // of all kits, the newest kit first; of two of one name the newer
    std::optional<Panel> FindPanel(std::string_view sName); // without regard to case

    // The row's ID and date of modification are given by the lab. The trace is kept as it came. Fails for a
    // project that is not there, a plate that is not of the project, and a well without a plate.
    std::int32_t AddSample(const SampleRow& oSample, std::span<const std::byte> abTrace);
    // The sample of that project whose trace has just this content.
    std::optional<SampleRow> FindSample(std::int32_t lProjectID, std::span<const std::byte> abTrace);
    std::optional<SampleRow> FindSample(std::int32_t lSampleID);
    std::vector<std::byte> TraceOf(std::int32_t lSampleID); // fails for an unknown sample
    // By ID; AllProjectsID for all. One query, however many rows.
    void ForEachSample(std::int32_t lProjectID, const std::function<void(SampleRow&&)>& fnVisit);
    // The same with just the IDs, the name and the dates of collection and modification filled, which is
    // faster: for lists of a million.
    void ForEachSampleHead(std::int32_t lProjectID, const std::function<void(SampleRow&&)>& fnVisit);
    std::vector<SampleRow> SamplesOfPlate(std::int32_t lPlateID);
    // Allelic ladders of the sample's plate and run that name its panel, nearest in time of collection first;
    // none for a sample without a plate.
    std::vector<SampleRow> LaddersFor(const SampleRow& oSample);

    // Fails for a sample or a parameter that is not there, and for a call of a peak that is not.
    std::int32_t AddResult(const NewResult& oResult);
    std::optional<ResultRow> FindResult(std::int32_t lResultID);
    void ForEachResult(std::int32_t lProjectID, const std::function<void(ResultRow&&)>& fnVisit);
    std::vector<ResultRow> ResultsOfPlate(std::int32_t lPlateID); // the latest of a well last
    std::vector<ResultRow> ResultsOfSample(std::int32_t lSampleID);
    SizedTrace SizedOf(std::int32_t lResultID); // fails for an unknown result and for damaged content
    CalledTrace CalledOf(std::int32_t lResultID);

    // Its ID; that of the row with the same type and loci when there is one.
    std::int32_t AddParameter(const ParameterRow& oParameter);
    std::optional<ParameterRow> FindParameter(std::int32_t lParameterID);

    std::int32_t AddStudy(std::string_view sName);
    std::optional<StudyRow> FindStudy(std::string_view sName);
    std::vector<StudyRow> Studies();                                                // by name
    void AddStudyResult(std::int32_t lStudyID, std::int32_t lResultID, bool bFlag); // fails when it is there
    std::vector<ResultRow> ResultsOfStudy(std::int32_t lStudyID);                   // in the order of adding

    std::vector<Models::GridTypeRecord::Column>
    GridColumns(std::int32_t lGridTypeID); // none for an unknown one

    // Settings are whole numbers; lDefault where none is stored.
    std::int32_t Setting(std::string_view sName, std::int32_t lDefault);
    void ChangeSetting(std::string_view sName, std::int32_t lValue);

    void Log(const LogRow& oEntry);                     // its ID and time are given by the lab
    std::vector<LogRow> LogEntries(std::int32_t lLast); // the last ones, oldest first

    // An MB is 1024 times 1024 bytes.
    double SizeMB();            // of the database on disk, its log included
    double ResultMB();          // of one result: the mean of the latest; a usual size while there are none
    void LimitSize(double dMB); // from now on a write beyond it fails as on a full disk; 0 for no limit
    std::int64_t
    Revision() const; // grows with each write of this program: what it read under another one may be stale
    std::string CheckIntegrity(); // "ok", or what the database says is wrong

    RecordMarks& Marks() { return m_oMarks; } // of its samples and results; never stored

  private:
    explicit Lab(std::unique_ptr<Database> oDatabase);

    void RequireRow(std::string_view sSql, std::string_view sKind, std::int32_t lID);
    void RequireNewName(bool bIsThere, std::string_view sKind, std::string_view sName);
    void RequirePlate(const SampleRow& oSample);
    void AddCalls(std::int32_t lResultID, const NewResult& oResult);
    const std::vector<Panel>& KeptPanels();
    void WriteLog(const LogRow& oEntry);
    void KeepLog() noexcept;
    [[noreturn]] void Fail(const std::string& sWhat) const;

    std::unique_ptr<Database> m_oDatabase;
    RecordMarks m_oMarks;
    std::optional<std::vector<Panel>> m_oPanels;             // none until asked for, and after a change
    std::vector<std::pair<std::int32_t, LogRow>> m_aoLogged; // in the open transactions, by depth
};

} // namespace GleanerSvc::Workbench
