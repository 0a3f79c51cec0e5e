#include "birthdata/qt/names_window.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QVBoxLayout>

#include "birthdata/qt/record_list_window.h"

namespace tolvanis {
Names::Names(std::string file, NamesState& state, Messages& messages, QWidget* parent)
    : QWidget(parent, Qt::Window),
      file_(std::move(file)),
      state_(state),
      messages_(messages),
      pane_(new RecordListPane({"NamesOnFile", "lblNamesOnFile", "name", "names"}, this)),
      Check1_(new QCheckBox(QStringLiteral("&Lock list"), this)) {
    setObjectName(QStringLiteral("Names"));
    setWindowTitle(QStringLiteral("Names"));
    Check1_->setObjectName(QStringLiteral("Check1"));
    Check1_->setToolTip(QStringLiteral("The list opens again where it is now"));
    connect(Check1_, &QCheckBox::clicked, this, &Names::Check1_Click);
    connect(&pane_->list(), &RecordListView::rowPicked, this, &Names::NamesOnFile_Click);
    connect(&pane_->list(), &RecordListView::rowOpened, this, &Names::NamesOnFile_DblClick);

    auto* column = new QVBoxLayout(this);
    column->addWidget(pane_, 1);
    column->addWidget(Check1_);
    column->addLayout(ListButtons(*this, QStringLiteral("Click here for &cities"), &Names::citiesRequested,
                                  &Names::editListRequested, &Names::changeListRequested));
    setFocusProxy(pane_);
}

void Names::Load() {
    Check1_->setChecked(state_.locked);
    pane_->ShowReading(file_);
    loader_.Start(PathFromText(file_), ReadNamesFile, [this](RecordList names) { Show(std::move(names)); });
}

void Names::Show(RecordList names) {
    names_ = std::move(names);
    pane_->Show(
        names_.size(), [this](std::size_t row) { return NameAt(names_, row); }, ProblemText(names_.fault()));
    if (const auto position = RestoredPosition(state_, names_.size())) {
        if (!state_.justSaved) state_.rememberedIndex = position->selected;
        pane_->list().SetPosition(position->top, position->selected);
    }
    if (names_.fault()) TellNamesFault(*names_.fault(), messages_);
}

void Names::ChangeFile(const std::string& file) {
    file_ = file;
    state_.justSaved = false;
    state_.rememberedIndex = 0;
    Load();
}

void Names::Check1_Click() {
    state_.locked = Check1_->isChecked();
    if (state_.locked) state_.rememberedIndex = pane_->list().CurrentRow();
}

std::optional<NatalEntry> Names::Pick(int row) {
    state_.justSaved = false;
    const auto record = FindName(names_, pane_->list().records().Text(row));
    if (!record) return std::nullopt;
    if (state_.locked) state_.rememberedIndex = row;
    const Result<NatalEntry> entry = EntryFromRecord(NameRecordAt(names_, *record));
    return entry ? std::optional(*entry) : std::nullopt;
}

void Names::NamesOnFile_Click(int row) {
    if (const auto entry = Pick(row)) Q_EMIT picked(*entry);
}

void Names::NamesOnFile_DblClick(int row) {
    const auto entry = Pick(row);
    if (!entry) return;
    Q_EMIT picked(*entry);
    Q_EMIT computeRequested();
}

void Names::closeEvent(QCloseEvent* event) {
    event->accept();
    Q_EMIT closedByUser();
}

}  // namespace tolvanis
