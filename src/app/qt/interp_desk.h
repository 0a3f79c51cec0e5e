#pragma once
// The report and the reference windows among the program's windows.

#include <QObject>
#include <QPointer>

#include "app/program_state.h"
#include "interp/qt/keyword_system_window.h"
#include "interp/qt/keywords_window.h"
#include "interp/qt/meanings_window.h"
#include "interp/qt/report_window.h"
#include "platform/qt/placement.h"

namespace tolvanis {

class InterpDesk : public QObject {
    Q_OBJECT

  public:
    InterpDesk(ProgramState& state, const PrintServices& printing) : state_(state), printing_(printing) {}
    ~InterpDesk() override;

    // Builds the report of the computed chart and shows its beginning.
    void OpenReport();
    // Opens the meanings with their first choice, where the user has had them before.
    void OpenMeanings();
    void CloseMeanings();
    // Open these windows or bring them forward.
    void OpenKeywords();
    void OpenKeywordSystem();

    Report* report() { return report_; }
    MEANINGS* meanings() { return meanings_; }
    Keywords* keywords() { return keywords_; }
    KW_SYSTM* keywordSystem() { return keywordSystem_; }

  Q_SIGNALS:
    void dataBufferRequested();  // a meaning has been written
    void lessonRequested(const std::string& file);
    void mainWindowRequested();

  private:
    void BuildReport();
    void ShowMeaning(const MeaningPlace& place);

    ProgramState& state_;
    PrintServices printing_;
    QPointer<Report> report_;
    QPointer<MEANINGS> meanings_;
    QPointer<Keywords> keywords_;
    QPointer<KW_SYSTM> keywordSystem_;
    KeptPlace reportPlace_, meaningsPlace_, keywordsPlace_, keywordSystemPlace_;
};

}  // namespace tolvanis
