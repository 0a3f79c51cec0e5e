#include "app/qt/select_file_window.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QStorageInfo>
#include <QStyle>

#include "platform/directory_list.h"
#include "platform/qt/elided_label.h"
#include "platform/qt/placement.h"
#include "platform/qt/push_button.h"
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

void AddItem(QListWidget& list, QStyle::StandardPixmap icon, const std::string& name, int level,
             const Path& path) {
    const QString indent(2 * level, QLatin1Char(' '));
    auto* item = new QListWidgetItem(list.style()->standardIcon(icon), indent + ToQt(name), &list);
    item->setData(kPathRole, ToQt(path.string()));
    item->setToolTip(ToQt(name).toHtmlEscaped());
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
    drvList_ = Named(new QComboBox, "drvList", "Drives");
    drvList_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    dirList_ = Named(MakeList(), "dirList", "Directories");
    filList_ = Named(MakeList(), "filList", "Files");
    lblPath_ = new ElidedLabel;
    QPushButton* select = MakePushButton("cmdSelect", QStringLiteral("Select"));
    QPushButton* cancel = MakePushButton("cmdCancel", QStringLiteral("Cancel"));
    select->setDefault(true);
    LayOut(*select, *cancel);
    QWidget* const order[] = {filList_, dirList_, drvList_, select, cancel};
    for (std::size_t i = 1; i < std::size(order); ++i) setTabOrder(order[i - 1], order[i]);
    connect(select, &QPushButton::clicked, this, &SelectFIle::cmdSelect_Click);
    connect(cancel, &QPushButton::clicked, this, &SelectFIle::cmdCancel_Click);
    connect(filList_, &QListWidget::itemDoubleClicked, this, &SelectFIle::cmdSelect_Click);
    connect(dirList_, &QListWidget::itemDoubleClicked, this, &SelectFIle::dirList_Change);
    connect(drvList_, &QComboBox::activated, this, &SelectFIle::drvList_Change);
}

// The files in the left column, directories and drives in the right one, the path and the buttons below.
void SelectFIle::LayOut(QPushButton& select, QPushButton& cancel) {
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(&select);
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
    lblPath_->setToolTip(lblPath_->text().toHtmlEscaped());
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
        AddItem(*dirList_, QStyle::SP_DirIcon, part.string(), level++, path);
    }
    dirList_->setCurrentRow(dirList_->count() - 1);
    for (const std::string& name : DirectoriesIn(directory_)) {
        AddItem(*dirList_, QStyle::SP_DirIcon, name, level, directory_ / name);
    }
    dirList_->scrollToItem(dirList_->currentItem());
}

void SelectFIle::FillFiles() {
    filList_->clear();
    const std::vector<std::string> names = FilesIn(directory_, pattern_);
    for (const std::string& name : names) AddItem(*filList_, QStyle::SP_FileIcon, name, 0, directory_ / name);
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
