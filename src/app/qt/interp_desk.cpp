#include "app/qt/interp_desk.h"

#include "interp/qt/status_window.h"
#include "output/text_files.h"
#include "platform/qt/hourglass.h"

namespace tolvanis {
namespace {

constexpr const char* kReportsDirectory = "REPORTS";
constexpr const char* kOverflowText =
    "The report is too long. It has been cut after 32,767 lines. Please look for an interpretation text that "
    "is far longer than the others.";

// The middle of the screen, from where a window goes where it covers least.
QRect MiddlePlace(const QSize& size) {
    const QList<QRect> screens = UsableScreens();
    QRect place(QPoint(), size);
    if (!screens.isEmpty()) place.moveCenter(screens.front().center());
    return place;
}

}  // namespace

InterpDesk::~InterpDesk() {
    delete keywordSystem_;
    delete keywords_;
    delete meanings_;
    delete report_;
}

void InterpDesk::BuildReport() {
    const Hourglass hourglass;
    StatusDlg status;
    const std::vector<std::string> personalBlock = ReadPersonalBlock(state_.files.Own(kPersonalBlockName));
    BuildNatalReport(state_.report, {state_.chart, state_.options, state_.files, personalBlock}, &status);
}

void InterpDesk::OpenReport() {
    if (!state_.chartComputed) return;
    BuildReport();
    if (report_ == nullptr) {
        report_ = new Report({state_.report, state_.options, state_.titlePrefix, state_.SaveFileName,
                              printing_, state_.files.Own(kReportsDirectory)});
        connect(report_, &Report::mainWindowRequested, this, &InterpDesk::mainWindowRequested);
        reportPlace_.Apply(*report_, MiddlePlace(report_->size()));
    }
    report_->Load(state_.chart.natal.Name);
    BringForward(*report_);
    if (state_.report.overflowed()) printing_.messages.Tell("Warning!", kOverflowText, MessageIcon::Warning);
}

void InterpDesk::OpenMeanings() {
    CloseMeanings();
    meanings_ = new MEANINGS(printing_.messages);
    connect(meanings_, &MEANINGS::meaningChosen, this, &InterpDesk::ShowMeaning);
    connect(meanings_, &MEANINGS::mainWindowRequested, this, &InterpDesk::mainWindowRequested);
    meaningsPlace_.Apply(*meanings_, MiddlePlace(meanings_->sizeHint()));
    BringForward(*meanings_);
}

void InterpDesk::CloseMeanings() {
    if (meanings_ != nullptr) meanings_->hide();
    delete meanings_;
}

void InterpDesk::ShowMeaning(const MeaningPlace& place) {
    const Path file = MeaningFile(state_.files, state_.settings.InterpsDir, place.file);
    const Result<void> listed = [&] {
        const Hourglass hourglass;
        return ListMeaning(state_.buffer, file, place.key);
    }();
    if (!listed) printing_.messages.Tell("Warning!", listed.message(), MessageIcon::Stop);
    Q_EMIT dataBufferRequested();
}

void InterpDesk::OpenKeywords() {
    if (keywords_ == nullptr) {
        keywords_ = new Keywords(printing_.messages, state_.screen.twipsPerPixel);
        connect(keywords_, &Keywords::mainWindowRequested, this, &InterpDesk::mainWindowRequested);
        keywordsPlace_.Apply(*keywords_, MiddlePlace(keywords_->size()));
    }
    BringForward(*keywords_);
}

void InterpDesk::OpenKeywordSystem() {
    if (keywordSystem_ == nullptr) {
        keywordSystem_ = new KW_SYSTM;
        connect(keywordSystem_, &KW_SYSTM::lessonChosen, this, &InterpDesk::lessonRequested);
        connect(keywordSystem_, &KW_SYSTM::mainWindowRequested, this, &InterpDesk::mainWindowRequested);
        keywordSystemPlace_.Apply(*keywordSystem_, MiddlePlace(keywordSystem_->sizeHint()));
    }
    BringForward(*keywordSystem_);
}

}  // namespace tolvanis
