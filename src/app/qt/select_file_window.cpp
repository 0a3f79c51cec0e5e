#include "app/qt/select_file_window.h"

#include <QComboBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QStorageInfo>
#include <QStyle>
#include <QStyledItemDelegate>
#include <algorithm>

#include "platform/directory_list.h"
#include "platform/qt/elided_label.h"
#include "platform/qt/placement.h"
#include "platform/qt/push_button.h"
#include "platform/qt/text.h"
#include "text/columns.h"

namespace tolvanis {
namespace {

constexpr int kPathRole = Qt::UserRole;
constexpr int kLevelRole = Qt::UserRole + 1;  // of a directory, 0 for the root

// File systems that hold no files of the user's.
bool HoldsFiles(const QStorageInfo& volume) {
    const QString root = volume.rootPath();
    const auto below = [&](const char* path) { return root.startsWith(QLatin1String(path)); };
    return volume.isValid() && volume.isReady() && !below("/proc") && !below("/sys") && !below("/dev") &&
           !below("/run/") && !below("/snap") && !below("/boot");
}

Path FoundPath(const std::string& path) {
    return AbsolutePath(FindPath(PathFromText(path)));
}

Path StartDirectory(const Path& applicationDirectory, const std::string& currentPath) {
    const Path current = FoundPath(currentPath).parent_path();
    std::error_code error;
    const bool exists = !currentPath.empty() && std::filesystem::is_directory(current, error);
    return exists ? current : FindPath(applicationDirectory);
}

// The file, where it is a regular one or may become one.
Path FileToAddTo(const std::string& path, const std::string& pattern) {
    const Path file = FoundPath(path);
    std::error_code error;
    const bool isOther =
        std::filesystem::exists(file, error) && !std::filesystem::is_regular_file(file, error);
    return !isOther && FitsPattern(file.filename().string(), pattern) ? file : Path();
}

// A list in which a long name goes on in a second line; what still has no room is in the tool tip.
QListWidget* MakeList() {
    auto* list = new QListWidget;
    const int side = list->style()->pixelMetric(QStyle::PM_SmallIconSize);
    list->setIconSize({side, side});
    list->setWordWrap(true);
    list->setResizeMode(QListView::Adjust);
    list->setTextElideMode(Qt::ElideMiddle);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setMinimumWidth(list->fontMetrics().averageCharWidth() * 26);
    // Two lists share the window's width evenly, whatever they hold.
    list->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
    return list;
}

// Shows the items of deeper levels set further in. Their texts begin with their names, which typed letters
// find.
class IndentingDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        option->text.prepend(QString(2 * index.data(kLevelRole).toInt(), QLatin1Char(' ')));
    }
};

QListWidgetItem* AddItem(QListWidget& list, QStyle::StandardPixmap icon, const Path& path,
                         const std::string& name) {
    auto* item = new QListWidgetItem(list.style()->standardIcon(icon), ToQt(name), &list);
    item->setData(kPathRole, ToQt(path.string()));
    item->setToolTip(TipText(ToQt(name)));
    return item;
}

void AddDirectory(QListWidget& list, const Path& path, const std::string& name, int level) {
    AddItem(list, QStyle::SP_DirIcon, path, name)->setData(kLevelRole, level);
}

template <typename Widget>
Widget* Named(Widget* widget, const char* object, const char* accessible) {
    widget->setObjectName(QLatin1String(object));
    widget->setAccessibleName(QLatin1String(accessible));
    return widget;
}

QLabel* LabelOf(const char* caption, QWidget* buddy) {
    auto* label = new QLabel(QLatin1String(caption));
    label->setBuddy(buddy);
    return label;
}

}  // namespace

SelectFIle::SelectFIle(const Path& applicationDirectory, const std::string& pattern,
                       const std::string& currentPath, FileUse use, QWidget* parent)
    : QDialog(parent), pattern_(pattern), currentPath_(currentPath), use_(use) {
    if (use == FileUse::AddTo) fileToAddTo_ = FileToAddTo(currentPath, pattern);
    setObjectName(QStringLiteral("SelectFIle"));
    setWindowTitle(QStringLiteral("Select a File"));
    Build();
    ShowDirectory(StartDirectory(applicationDirectory, currentPath));
    FillDrives();
    filList_->setFocus();
}

void SelectFIle::Build() {
    drvList_ = Named(new QComboBox, "drvList", "Drives");
    drvList_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    dirList_ = Named(MakeList(), "dirList", "Directories");
    filList_ = Named(MakeList(), "filList", "Files");
    lblPath_ = new ElidedLabel;
    cmdSelect_ = MakePushButton("cmdSelect", QStringLiteral("Select"));
    QPushButton* cancel = MakePushButton("cmdCancel", QStringLiteral("Cancel"));
    cmdSelect_->setDefault(true);
    dirList_->setItemDelegate(new IndentingDelegate(dirList_));
    LayOut(*cancel);
    QWidget* const order[] = {filList_, dirList_, drvList_, cmdSelect_, cancel};
    for (std::size_t i = 1; i < std::size(order); ++i) setTabOrder(order[i - 1], order[i]);
    connect(cmdSelect_, &QPushButton::clicked, this, &SelectFIle::cmdSelect_Click);
    connect(cancel, &QPushButton::clicked, this, &SelectFIle::cmdCancel_Click);
    connect(filList_, &QListWidget::itemSelectionChanged, this, &SelectFIle::EnableSelect);
    connect(filList_, &QListWidget::itemDoubleClicked, this, &SelectFIle::cmdSelect_Click);
    connect(dirList_, &QListWidget::itemDoubleClicked, this, &SelectFIle::dirList_Change);
    connect(drvList_, &QComboBox::activated, this, &SelectFIle::drvList_Change);
}

// The files in the left column, directories and drives in the right one, the path and the buttons below.
void SelectFIle::LayOut(QPushButton& cancel) {
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdSelect_);
    buttons->addWidget(&cancel);
    auto* grid = new QGridLayout(this);
    grid->addWidget(LabelOf("&Files", filList_), 0, 0);
    grid->addWidget(filList_, 1, 0, 3, 1);
    grid->addWidget(LabelOf("&Directories", dirList_), 0, 1);
    grid->addWidget(dirList_, 1, 1);
    grid->addWidget(LabelOf("D&rives", drvList_), 2, 1);
    grid->addWidget(drvList_, 3, 1);
    grid->addWidget(lblPath_, 4, 0, 1, 2);
    grid->addLayout(buttons, 5, 0, 1, 2);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(1, 1);
    ResizeToFit(*this, {fontMetrics().averageCharWidth() * 84, fontMetrics().lineSpacing() * 24});
}

void SelectFIle::FillDrives() {
    const QString here = ToQt(directory_.string());
    QString longest;
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
        if (!HoldsFiles(volume)) continue;
        const QString root = volume.rootPath();
        drvList_->addItem(root);
        if (here.startsWith(root) && root.size() > longest.size()) longest = root;
    }
    if (drvList_->count() == 0) drvList_->addItem(QStringLiteral("/"));
    drvList_->setCurrentIndex(std::max(0, drvList_->findText(longest)));
}

void SelectFIle::ShowDirectory(const Path& directory) {
    directory_ = directory;
    lblPath_->setText(ToQt(directory_.string()));
    lblPath_->setToolTip(TipText(lblPath_->text()));
    FillDirectories();
    FillFiles();
}

// The directories from the root down to the one shown, then those inside it, each level set further in.
void SelectFIle::FillDirectories() {
    dirList_->clear();
    Path path;
    int level = 0;
    for (const Path& part : directory_) {
        path /= part;
        if (part.empty()) continue;
        AddDirectory(*dirList_, path, part.string(), level++);
    }
    dirList_->setCurrentRow(dirList_->count() - 1);
    for (const std::string& name : DirectoriesIn(directory_)) {
        AddDirectory(*dirList_, directory_ / name, name, level);
    }
    dirList_->scrollToItem(dirList_->currentItem());
}

void SelectFIle::FillFiles() {
    filList_->clear();
    const std::vector<std::string> names = OfferedFiles();
    for (const std::string& name : names) {
        QListWidgetItem* item = AddItem(*filList_, QStyle::SP_FileIcon, directory_ / name, name);
        if (IsNew(name)) item->setToolTip(TipText(ToQt(name + " does not exist yet; saving makes it.")));
    }
    // Told in so many words that none is current, the list waits for the first key and then selects.
    filList_->setCurrentIndex(filList_->model()->index(RowToSelect(names), 0));
    EnableSelect();
}

// Whether this is the file to be added to, which does not exist yet.
bool SelectFIle::IsNew(const std::string& name) const {
    std::error_code error;
    return fileToAddTo_ == directory_ / name && !std::filesystem::exists(fileToAddTo_, error);
}

std::vector<std::string> SelectFIle::OfferedFiles() const {
    std::vector<std::string> names = FilesIn(directory_, pattern_);
    const std::string name = fileToAddTo_.filename().string();
    if (IsNew(name)) names.insert(std::ranges::lower_bound(names, UpperCase(name), {}, UpperCase), name);
    return names;
}

int SelectFIle::RowToSelect(const std::vector<std::string>& names) const {
    if (use_ == FileUse::Read) {
        return names.empty() ? -1 : static_cast<int>(IndexOfPathEnd(names, currentPath_));
    }
    if (fileToAddTo_.parent_path() != directory_) return -1;
    const auto found = std::ranges::find(names, fileToAddTo_.filename().string());
    return found == names.end() ? -1 : static_cast<int>(found - names.begin());
}

QListWidgetItem* SelectFIle::ChosenFile() const {
    return filList_->selectedItems().value(0);
}

void SelectFIle::EnableSelect() {
    cmdSelect_->setEnabled(ChosenFile() != nullptr);
}

void SelectFIle::drvList_Change(int index) {
    ShowDirectory(drvList_->itemText(index).toStdString());
}

void SelectFIle::dirList_Change(QListWidgetItem* item) {
    if (item != nullptr) ShowDirectory(item->data(kPathRole).toString().toStdString());
}

void SelectFIle::cmdSelect_Click() {
    const QListWidgetItem* file = ChosenFile();
    if (file == nullptr) return;
    result_ = JoinPathText(directory_.string(), file->text().toStdString());
    accept();
}

void SelectFIle::cmdCancel_Click() {
    result_.clear();
    reject();
}

// Enter in the directory list opens the directory.
void SelectFIle::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && focusWidget() == dirList_) return dirList_Change(dirList_->currentItem());
    QDialog::keyPressEvent(event);
}

}  // namespace tolvanis
