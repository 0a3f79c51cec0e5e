#include "app/qt/print_file_window.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include "app/editor_uses.h"
#include "output/text_files.h"
#include "platform/file_replacing.h"
#include "platform/qt/placement.h"
#include "platform/qt/push_button.h"
#include "platform/qt/text.h"
#include "platform/qt/text_area.h"

namespace tolvanis {

PrntFile::PrntFile(const Options& options, const PrintServices& services)
    : QDialog(nullptr, Qt::Window), options_(options), services_(services) {
    setObjectName(QStringLiteral("PrntFile"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QStringLiteral("Data To Be Printed"));
    txtContent_ = MakeTextArea("txtContent", "Text to be printed");
    auto* hint = new QLabel(ToQt(kClipboardHint));
    hint->setWordWrap(true);
    QPushButton* print = MakePushButton("btnPrint", QStringLiteral("Print"));
    QPushButton* cancel = MakePushButton("btnCancel", QStringLiteral("Cancel"));
    connect(print, &QPushButton::clicked, this, &PrntFile::btnPrint_Click);
    connect(cancel, &QPushButton::clicked, this, &PrntFile::btnCancel_Click);
    auto* row = new QHBoxLayout;
    row->addWidget(hint, 1);
    row->addWidget(print);
    row->addWidget(cancel);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(txtContent_);
    layout->addLayout(row);
    print->setDefault(true);
    const QFontMetrics metrics(txtContent_->font());
    ResizeToFit(*this, {metrics.horizontalAdvance(QLatin1Char('M')) * 88, metrics.lineSpacing() * 34});
    MoveToMiddle(*this);
    print->setFocus();
    Load();
}

Path PrntFile::File() const {
    return FindFile(services_.directory(), kPrintFileName);
}

void PrntFile::Load() {
    const Result<std::vector<std::string>> lines = ReadLines(File());
    if (!lines) {
        services_.messages.Tell("Error!", lines.message(), MessageIcon::Stop);
        return;
    }
    longLines_ = HasLongLine(*lines, options_[kLongestPrintedLineOption]);
    SetAreaText(*txtContent_, JoinLines(*lines));
}

void PrntFile::btnPrint_Click() {
    const Result<void> written = ReplaceFile(File(), AreaText(*txtContent_) + "\r\n");
    if (!written) {
        services_.messages.Tell("Error!", written.message(), MessageIcon::Stop);
        return;
    }
    const Result<std::vector<std::string>> lines = ReadLines(File());
    if (!lines) {
        services_.messages.Tell("Error!", lines.message(), MessageIcon::Stop);
        return;
    }
    const PrintText text = {SplitIntoPages(*lines, options_[kLinesPerPrintedPageOption]),
                            PrintPointSize(longLines_)};
    // A print that failed or was called off leaves the text for another try.
    if (PrintPages(services_, "Tolvanis data", text)) close();
}

void PrntFile::btnCancel_Click() {
    close();
}

}  // namespace tolvanis
