#include "app/qt/select_file_window.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QStorageInfo>
#include <QStyle>

#include "platform/directory_list.h"
#include "platform/qt/text.h"

namespace tolvanis {
namespace {

constexpr int kPathRole = Qt::UserRole;

// File systems that hold no files of the user's.
bool HoldsFiles(const QStorageInfo& volume) {
    const QString root = volume.rootPath();
    const auto below = [&](const char* path) { return root.startsWith(QLatin1String(path)); };
    return volume.isValid() && volume.isReady() && !below("/proc") && !below("/sys") && !below("/dev") &&
           !below("/run/") && !below("/snap") && !below("/boot");
}

Path StartDirectory(const Path& applicationDirectory, const std::string& currentPath) {
    const Path current = AbsolutePath(FindPath(PathFromText(currentPath))).parent_path();
    std::error_code error;
    const bool exists = !currentPath.empty() && std::filesystem::is_directory(current, error);
    return exists ? current : FindPath(applicationDirectory);
}

QListWidgetItem* DirectoryItem(const QString& caption, const Path& path) {
    auto* item = new QListWidgetItem(caption);
    item->setData(kPathRole, ToQt(path.string()));
    return item;
}

}  // namespace

SelectFIle::SelectFIle(const Path& applicationDirectory, const std::string& pattern,
                       const std::string& currentPath, QWidget* parent)
    : QDialog(parent), pattern_(pattern), currentPath_(currentPath) {
    setObjectName(QStringLiteral("SelectFIle"));
    setWindowTitle(QStringLiteral("Select a File"));
    Build();
    ShowDirectory(StartDirectory(applicationDirectory, currentPath));
    FillDrives();
    filList_->setFocus();
}

void SelectFIle::Build() {
    drvList_ = new QComboBox;
    dirList_ = new QListWidget;
    filList_ = new QListWidget;
    lblPath_ = new QLabel;
    lblPath_->setTextFormat(Qt::PlainText);
    auto* select = new QPushButton(QStringLiteral("Select"));
    auto* cancel = new QPushButton(QStringLiteral("Cancel"));
    const auto name = [](QWidget* widget, const char* object, const char* accessible) {
        widget->setObjectName(QLatin1String(object));
        widget->setAccessibleName(QLatin1String(accessible));
    };
    name(drvList_, "drvList", "Drives");
    name(dirList_, "dirList", "Directories");
    name(filList_, "filList", "Files");
    name(select, "cmdSelect", "Select");
    name(cancel, "cmdCancel", "Cancel");
    select->setDefault(true);
    cancel->setAutoDefault(false);

    auto* grid = new QGridLayout(this);
    const auto label = [&](const char* caption, QWidget* buddy, int column) {
        auto* text = new QLabel(QLatin1String(caption));
        text->setBuddy(buddy);
        grid->addWidget(text, 0, column);
    };
    label("&Files", filList_, 0);
    label("&Directories", dirList_, 1);
    grid->addWidget(filList_, 1, 0, 3, 1);
    grid->addWidget(dirList_, 1, 1);
    auto* drives = new QLabel(QStringLiteral("D&rives"));
    drives->setBuddy(drvList_);
    grid->addWidget(drives, 2, 1);
    grid->addWidget(drvList_, 3, 1);
    grid->addWidget(lblPath_, 4, 0, 1, 2);
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(select);
    row->addWidget(cancel);
    grid->addLayout(row, 5, 0, 1, 2);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(1, 1);
    setTabOrder(filList_, dirList_);
    setTabOrder(dirList_, drvList_);
    setTabOrder(drvList_, select);
    setTabOrder(select, cancel);
    const int letter = fontMetrics().averageCharWidth();
    filList_->setMinimumWidth(letter * 26);
    resize(letter * 72, fontMetrics().lineSpacing() * 24);

    connect(select, &QPushButton::clicked, this, &SelectFIle::cmdSelect_Click);
    connect(cancel, &QPushButton::clicked, this, &SelectFIle::cmdCancel_Click);
    connect(filList_, &QListWidget::itemDoubleClicked, this, &SelectFIle::cmdSelect_Click);
    connect(dirList_, &QListWidget::itemDoubleClicked, this, &SelectFIle::dirList_Change);
    connect(drvList_, &QComboBox::activated, this, &SelectFIle::drvList_Change);
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
    lblPath_->setToolTip(lblPath_->text());
    FillDirectories();
    FillFiles();
}

// The directories from the root down to the one shown, then those inside it, each level set further in.
void SelectFIle::FillDirectories() {
    dirList_->clear();
    const QIcon closed = style()->standardIcon(QStyle::SP_DirIcon);
    const QIcon open = style()->standardIcon(QStyle::SP_DirOpenIcon);
    Path path;
    QString indent;
    for (const Path& part : directory_) {
        path /= part;
        if (part.empty()) continue;
        auto* item = DirectoryItem(indent + ToQt(part.string()), path);
        item->setIcon(open);
        dirList_->addItem(item);
        indent += QLatin1String("  ");
    }
    dirList_->setCurrentRow(dirList_->count() - 1);
    for (const std::string& name : DirectoriesIn(directory_)) {
        auto* item = DirectoryItem(indent + ToQt(name), directory_ / name);
        item->setIcon(closed);
        dirList_->addItem(item);
    }
    dirList_->scrollToItem(dirList_->currentItem());
}

void SelectFIle::FillFiles() {
    filList_->clear();
    const std::vector<std::string> names = FilesIn(directory_, pattern_);
    for (const std::string& name : names) filList_->addItem(ToQt(name));
    if (names.empty()) return;
    filList_->setCurrentRow(static_cast<int>(IndexOfPathEnd(names, currentPath_)));
}

void SelectFIle::drvList_Change(int index) {
    ShowDirectory(drvList_->itemText(index).toStdString());
}

void SelectFIle::dirList_Change(QListWidgetItem* item) {
    if (item != nullptr) ShowDirectory(item->data(kPathRole).toString().toStdString());
}

void SelectFIle::cmdSelect_Click() {
    // Enter in the directory list opens the directory.
    if (focusWidget() == dirList_) return dirList_Change(dirList_->currentItem());
    if (filList_->currentItem() == nullptr) return;
    result_ = JoinPathText(directory_.string(), filList_->currentItem()->text().toStdString());
    accept();
}

void SelectFIle::cmdCancel_Click() {
    result_.clear();
    reject();
}

}  // namespace tolvanis
