#include "birthdata/name_saving.h"

#include <algorithm>

#include "birthdata/names_file.h"
#include "platform/file_replacing.h"
#include "text/columns.h"
#include "text/fields.h"
#include "text/numbers.h"

namespace tolvanis {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

std::string ReplaceQuestion(const NameRecord& record) {
    return "There is already a name on file matching your current name with the following associated data: "
           "\r\n\r\nDate =  " +
           record.date + "\r\nTime =  " + record.time + " " + record.halfDay +
           "\r\nTime zone =  " + record.timeZone + "\r\nLongitude =  " + record.longitude +
           "\r\nLatitude =  " + record.latitude +
           "\r\n\r\nDo you want to replace it?\r\n\r\nAnswering 'NO' will append the current name and data "
           "to "
           "file, not replace the existing entry.";
}

// Asks which records the new one replaces. What the user has answered holds when the saving is done again.
class ReplaceQuestions {
  public:
    explicit ReplaceQuestions(Messages& messages) : messages_(messages) {}

    void StartAgain() {
        for (Asked& asked : asked_) asked.used = false;
    }

    bool Replaces(const NameRecord& record) {
        for (Asked& asked : asked_) {
            if (asked.used || asked.record != record) continue;
            asked.used = true;
            return asked.replaces;
        }
        const bool replaces =
            messages_.AskYesNo(record.name + " already exists", ReplaceQuestion(record), Answer::No);
        asked_.push_back({record, replaces, true});
        return replaces;
    }

  private:
    struct Asked {
        NameRecord record;
        bool replaces;
        bool used;
    };
    Messages& messages_;
    std::vector<Asked> asked_;
};

// The new content of a names file, whose readable records are `list`.
class Composer {
  public:
    Composer(const NameRecord& record, const RecordList& list, ReplaceQuestions& questions)
        : list_(list),
          line_(FormatNameRecord(record)),
          upperName_(UpperCase(record.name)),
          questions_(questions) {}

    std::string Compose(std::string_view content) {
        content_.reserve(content.size() + line_.size() + 2 * kLineEnd.size());
        if (content.starts_with(kByteOrderMark)) content_ = kByteOrderMark;
        while (!content.empty() && !ended_) Take(TakeLine(content));
        if (!placed_) PlaceNewRecord();
        content_ += content;
        return std::move(content_);
    }

    // Whether the list reads back with every record it had, but for those the user gave up, and the new one.
    bool ReadsBackWhole(std::string_view content) const {
        std::size_t expected = 0;
        LineReader reader = LineReader::OfText(content);
        for (std::string line; reader.Next(line); ++expected) {
            while (std::ranges::binary_search(replaced_, expected)) ++expected;
            if (expected >= list_.size()) return line == line_;
            if (line != list_.Line(expected)) return false;
        }
        return false;
    }

  private:
    void Take(std::string_view bytes) {
        const std::string text = LineText(bytes);
        const std::string_view bare = WithoutLineEnd(bytes);
        if (text.empty() && !bare.empty()) return;  // nothing but marks
        const std::string name = FirstField(text);
        ended_ = name.empty();
        if (!ended_ && IsReplaced(name, text)) return replaced_.push_back(index_++);
        if (index_++ >= list_.size() && !placed_) PlaceNewRecord();
        if (ended_) {
            content_ += bytes;
            return;
        }
        const std::string_view end = bytes.substr(bare.size());
        content_.append(text).append(end.ends_with('\r') ? kLineEnd : end);
    }

    bool IsReplaced(const std::string& name, std::string_view text) {
        if (UpperCase(name) != upperName_) return false;
        const Result<NameRecord> record = ParseNameRecord(text);
        return record && questions_.Replaces(*record);
    }

    void PlaceNewRecord() {
        const bool atStart = content_.empty() || content_ == kByteOrderMark;
        if (!atStart && !content_.ends_with('\n')) content_ += kLineEnd;
        content_.append(line_).append(kLineEnd);
        placed_ = true;
    }

    const RecordList& list_;
    std::string line_;
    std::string upperName_;
    ReplaceQuestions& questions_;
    std::string content_;
    std::size_t index_ = 0;  // of the next line
    std::vector<std::size_t> replaced_;
    bool placed_ = false;
    bool ended_ = false;
};

// Whether a reader of the record gets what the entry says.
bool ReadsBack(const NameRecord& record, const NatalEntry& entry) {
    const Result<NameRecord> parsed = ParseNameRecord(FormatNameRecord(record));
    if (!parsed || *parsed != record) return false;
    const Result<NatalEntry> read = EntryFromRecord(*parsed);
    if (!read) return false;
    using Box = std::string NatalEntry::*;
    constexpr Box kBoxes[] = {&NatalEntry::month,     &NatalEntry::day,      &NatalEntry::year,
                              &NatalEntry::birthHour, &NatalEntry::timeZone, &NatalEntry::birthMinute,
                              &NatalEntry::longDeg,   &NatalEntry::longMin,  &NatalEntry::latDeg,
                              &NatalEntry::latMin};
    return std::all_of(std::begin(kBoxes), std::end(kBoxes),
                       [&](Box box) { return LeadingNumber(entry.*box) == LeadingNumber((*read).*box); });
}

// The record of an entry, or the box to correct after telling the user what is wrong.
Result<NameRecord, EntryField> RecordToSave(const NatalEntry& entry, Messages& messages) {
    if (entry.name.find(',') != std::string::npos) {
        messages.Tell("Warning!",
                      "You cannot have a comma in the name. Please remove the comma and try again.",
                      MessageIcon::Stop);
        return EntryField::Name;
    }
    const auto refuse = [&](EntryField field) {
        messages.Tell("Warning!", std::string(kInputErrorText), MessageIcon::Information);
        return field;
    };
    for (const auto& faults : {CheckPresence(entry), CheckRanges(entry)}) {
        if (!faults.empty()) return refuse(faults.front().field);
    }
    NameRecord record = RecordFromEntry(entry);
    record.name = TrimBlanks(LineText(Printable(record.name)));
    if (record.name.empty()) return refuse(EntryField::Name);
    if (!EntireNumber(record.timeZone)) return refuse(EntryField::TimeZone);
    if (!ReadsBack(record, entry)) return refuse(EntryField::LatDeg);  // the box without bounds
    return record;
}

// The content of the chosen file; one that does not exist yet is empty.
Result<std::string> PresentContent(const Path& file) {
    std::error_code error;
    const Path found = FindPath(file);
    if (!std::filesystem::exists(found, error)) return std::string();
    if (std::filesystem::is_other(found, error)) return Fault{"The file " + file.string() + " is a device."};
    Result<std::string> content = ReadBytes(found);
    if (content && content->find('\0') != std::string::npos) {
        return Fault{"The file " + file.string() + " is not a names file: it holds bytes that no text has."};
    }
    return content;
}

// True when the file was replaced, false when it changed meanwhile.
Result<bool> TryToSave(const Path& file, const NameRecord& record, ReplaceQuestions& questions) {
    const Result<std::string> present = PresentContent(file);
    if (!present) return present.fault();
    questions.StartAgain();
    const RecordList list = NamesOfText(*present);
    Composer composer(record, list, questions);
    const std::string content = composer.Compose(*present);
    if (!composer.ReadsBackWhole(content)) {
        return Fault{"The list in " + file.string() +
                     " would not read back whole with the new record. Nothing was saved."};
    }
    return ReplaceIfUnchanged(file, BackupPath(FindPath(file)), *present, content);
}

}  // namespace

SaveOutcome SaveRecord(const NatalEntry& entry, const std::function<std::string()>& chooseFile,
                       Messages& messages) {
    const Result<NameRecord, EntryField> record = RecordToSave(entry, messages);
    if (!record) return {.file = {}, .toCorrect = record.fault()};
    const std::string chosen = chooseFile();
    if (chosen.empty()) return {};

    const Path file = PathFromText(chosen);
    ReplaceQuestions questions(messages);
    constexpr int kAttempts = 20;
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        const Result<bool> saved = TryToSave(file, *record, questions);
        if (!saved) {
            messages.Tell("Error!", saved.message(), MessageIcon::Stop);
            return {};
        }
        if (*saved) return {.file = file, .toCorrect = {}};
    }
    messages.Tell("Error!",
                  "Another program keeps changing the file " + file.string() + ". Nothing was saved.",
                  MessageIcon::Stop);
    return {};
}

}  // namespace tolvanis
