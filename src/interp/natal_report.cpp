#include "interp/natal_report.h"

#include <algorithm>

#include "interp/report_pages.h"
#include "interp/section_file.h"
#include "interp/text_names.h"
#include "output/natal_listing.h"
#include "output/text_files.h"
#include "text/columns.h"

namespace tolvanis {
namespace {

constexpr std::size_t kMiddle = 40;          // of an 80-column page
constexpr std::size_t kDataLineMiddle = 39;  // of the title page's line of birth data
constexpr int kTitleLines = 11;              // of the title page above the filler

struct ReportedAspect {
    AspectCode code;
    AspectPhrase phrase;
};
constexpr std::array kReportedAspects = {
    ReportedAspect{kConjunction, kBlending},  ReportedAspect{kSextile, kHarmonizing},
    ReportedAspect{kSquare, kDiscordant},     ReportedAspect{kTrine, kHarmonizing},
    ReportedAspect{kOpposition, kDiscordant},
};

std::string Centred(std::string_view text, std::size_t middle = kMiddle) {
    const std::size_t half = CharacterCount(text) / 2;
    return std::string(half < middle ? middle - half : 0, ' ').append(text);
}

// Writes the report part by part.
class ReportWriter {
  public:
    ReportWriter(ReportBuffer& report, const ReportSource& source, ReportProgress* progress)
        : report_(report),
          source_(source),
          positions_(source.chart.positions),
          aspects_(source.chart.aspects.list()),
          progress_(progress) {}

    void Write() {
        WriteTitlePage();
        report_.AppendEmptyLine();
        if (progress_ != nullptr) progress_->Open();
        CopyIntroduction("PHILO.HLP");
        CopyWholeFile("ASCSIGN.TXT");
        report_.AppendEmptyLine();
        CopySection(RisingKey(SignName(SignOf(positions_.PointLongitude[kAscendant]))), kRisingFile);
        report_.AppendEmptyLine();
        CopyWholeFile("SIGN.TXT");
        report_.AppendEmptyLine();
        WritePlanetsInSigns();
        CopyIntroduction("HOUSE.TXT");
        WritePlanetsInHouses();
        CopyIntroduction("ASPECT.TXT");
        WriteAspects();
        if (progress_ != nullptr) progress_->Close();
        report_.AppendEmptyLine();
        CopyWholeFile("CLOSING.TXT");
    }

  private:
    void AppendEmptyLines(int count) {
        for (int i = 0; i < count; ++i) report_.AppendEmptyLine();
    }

    void WriteTitlePage() {
        const NatalData& natal = source_.chart.natal;
        AppendEmptyLines(5);
        report_.AppendLine(Centred("NATAL REPORT FOR"));
        report_.AppendEmptyLine();
        report_.AppendLine(Centred(UpperCase(natal.Name)));
        AppendEmptyLines(2);
        report_.AppendLine(Centred(UpperCase(BirthDataLine(natal)), kDataLineMiddle));
        const int personalLines = static_cast<int>(source_.personalBlock.size());
        AppendEmptyLines(ReportPageFormOf(source_.options).lines - personalLines - kTitleLines);
        for (const std::string& line : source_.personalBlock) report_.AppendLine(Centred(line));
    }

    void WritePlanetsInSigns() {
        for (const int point : Planets()) {
            const int sign = SignOf(positions_.PointLongitude[point]);
            CopySection(PlacementKey(PointName(point)), SignFile(SignAbbreviation(sign)));
        }
    }

    void WritePlanetsInHouses() {
        for (const int point : Planets()) {
            CopySection(PlacementKey(PointName(point)), HouseFile(positions_.PointHouse[point]));
        }
    }

    void WriteAspects() {
        for (int row = 1; row <= kInterpretedPlanets; ++row) {
            for (int column = row; column <= kInterpretedPlanets; ++column) WriteAspectsOf(row, column);
            if (progress_ != nullptr) progress_->SetBar(row / 10.0);
        }
    }

    void WriteAspectsOf(int row, int column) {
        const std::string_view first = GridName(row);
        const std::string_view second = GridName(column);
        for (const ReportedAspect& reported : kReportedAspects) {
            const bool found = std::ranges::any_of(aspects_, [&](const FoundAspect& aspect) {
                return aspect.row == row && aspect.column == column && aspect.code == reported.code;
            });
            if (found) CopySection(AspectKey(first, reported.phrase, second), AspectFile(first));
        }
    }

    void CopyIntroduction(std::string_view file) {
        report_.AppendEmptyLine();
        CopyWholeFile(file);
        report_.AppendEmptyLine();
    }

    void CopyWholeFile(std::string_view file) {
        LineReader reader(source_.texts.FindText(file));
        for (std::string line; reader.Next(line);) report_.AppendLine(line);
    }

    void CopySection(std::string_view key, std::string_view file) {
        LineReader reader(source_.texts.FindText(file));
        const SectionOutcome outcome =
            TakeSection(reader, key, SearchEnd::TenEmptyLines,
                        [this](std::string_view line) { report_.AppendLine(line); });
        if (outcome == SectionOutcome::Complete) report_.AppendEmptyLine();
    }

    static std::span<const int> Planets() { return std::span(kGridOrder).first<kInterpretedPlanets>(); }

    ReportBuffer& report_;
    const ReportSource& source_;
    const ChartPositions& positions_;
    const std::vector<FoundAspect>& aspects_;
    ReportProgress* progress_;
};

}  // namespace

void BuildNatalReport(ReportBuffer& report, const ReportSource& source, ReportProgress* progress) {
    report.Reset();
    ReportWriter(report, source, progress).Write();
}

}  // namespace tolvanis
