#include "output/data_buffer.h"

namespace tolvanis {

void DataBuffer::StartListing() {
    listingLines_.clear();
}

void DataBuffer::AppendLine(std::string_view line) {
    for (std::vector<std::string>* lines : {&bufferLines_, &listingLines_}) {
        if (lines->size() < kMostLines) {
            lines->emplace_back(line);
        } else {
            overflowed_ = true;
        }
    }
}

void DataBuffer::AppendBlankLine() {
    AppendLine({});
}

void DataBuffer::ClearDataBuffer() {
    listingLines_.clear();
    ClearBufferLines();
}

void DataBuffer::ClearBufferLines() {
    bufferLines_.clear();
    overflowed_ = false;
    noticeGiven_ = false;
}

bool DataBuffer::TakeOverflowNotice() {
    const bool due = overflowed_ && !noticeGiven_;
    noticeGiven_ = noticeGiven_ || due;
    return due;
}

std::string DataBuffer::ListingText(std::string_view lineEnd) const {
    std::string text;
    for (const std::string& line : listingLines_) text.append(line).append(lineEnd);
    return text.append(lineEnd);
}

}  // namespace tolvanis
