#pragma once
// The list that the names, cities and time-zone windows share: records of a file, found by typing.

#include <QAbstractListModel>
#include <QElapsedTimer>
#include <QListView>
#include <QVBoxLayout>
#include <functional>
#include <optional>
#include <string>

#include "birthdata/record_search.h"
#include "platform/qt/push_button.h"

class QLabel;
class QLineEdit;

namespace tolvanis {

class ElidedLabel;

// Texts by row, fetched when they are painted, so that a long list costs nothing until it is seen.
class RecordListModel : public QAbstractListModel {
    Q_OBJECT

  public:
    using TextAt = std::function<std::string(std::size_t)>;

    using QAbstractListModel::QAbstractListModel;

    void SetRecords(std::size_t count, TextAt textAt);
    // What else the records are found by; asked when the search is built.
    void SetMore(RecordSearch::MoreAt moreAt) { moreAt_ = std::move(moreAt); }
    std::string Text(int row) const;
    // Built at the first search in the list.
    const RecordSearch& Search() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

  private:
    int count_ = 0;
    TextAt textAt_;
    RecordSearch::MoreAt moreAt_;
    mutable std::optional<RecordSearch> search_;
};

// A list of one column. Typed letters lead to the next text that begins with them; a click or the space bar
// picks a row, a double click or Enter opens it.
class RecordListView : public QListView {
    Q_OBJECT

  public:
    explicit RecordListView(QWidget* parent = nullptr);

    void SetRecords(std::size_t count, RecordListModel::TextAt textAt);
    const RecordListModel& records() const { return model_; }
    void SetMore(RecordSearch::MoreAt moreAt) { model_.SetMore(std::move(moreAt)); }

    int CurrentRow() const;              // -1 without one
    void SelectRow(int row);             // with its neighbours in view
    void SetPosition(int top, int row);  // selects a row with `top` as the first visible one

    // Makes the list at least as wide as its widest text. For short lists: it looks at every text.
    void KeepWidthOfTexts();

    void keyboardSearch(const QString& typed) override;
    QSize sizeHint() const override;

  Q_SIGNALS:
    void rowPicked(int row);
    void rowOpened(int row);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool viewportEvent(QEvent* event) override;

  private:
    bool IsTyping() const;

    RecordListModel model_;
    QString typed_;
    QElapsedTimer lastTyped_;
    int top_ = -1;  // still to be scrolled to when the window gets its size
};

// The list with its file's name above and a box in which one types what is to be found: the best match is
// selected at once, Down and Up (or F3 and Shift+F3) go on to the others, Enter picks.
class RecordListPane : public QWidget {
    Q_OBJECT

  public:
    struct Wording {
        const char* list;  // object names
        const char* label;
        const char* one;  // what the records are called: "name", "names"
        const char* many;
    };
    explicit RecordListPane(const Wording& wording, QWidget* parent = nullptr);

    RecordListView& list() { return *list_; }

    // Shows an empty list while a file is being read.
    void ShowReading(const std::string& file);
    // Shows the file's records; `problem` is shown below the list unless empty. What the user has typed into
    // the box meanwhile is looked for.
    void Show(std::size_t count, RecordListModel::TextAt textAt, const std::string& problem);

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void NameControls();
    void SetUpFind();
    void LayOut();
    void FindTyped();
    void GoToMatch(int step);
    void ShowCount();

    Wording wording_;
    ElidedLabel* fileLabel_;
    QLabel *countLabel_, *problemLabel_;
    QLineEdit* find_;
    RecordListView* list_;
    std::vector<std::size_t> matches_;
    int match_ = 0;
    bool reading_ = false;
};

// The buttons below the list of a window that shows a file: `Command1` goes to the other list, `cmdEditList`
// edits this one, `cmdNewFileList` changes to another file. Each raises one of the window's signals.
template <typename Window>
QLayout* ListButtons(Window& window, const QString& otherList, void (Window::*other)(),
                     void (Window::*edit)(), void (Window::*change)()) {
    auto* column = new QVBoxLayout;
    auto* row = new QHBoxLayout;
    const auto add = [&window](QBoxLayout* layout, const char* name, const QString& caption,
                               void (Window::*signal)()) {
        QPushButton* button = MakePushButton(name, caption);
        QObject::connect(button, &QPushButton::clicked, &window, signal);
        layout->addWidget(button);
    };
    add(column, "Command1", otherList, other);
    add(row, "cmdEditList", QStringLiteral("&Edit this List"), edit);
    add(row, "cmdNewFileList", QStringLiteral("C&hange List"), change);
    column->addLayout(row);
    return column;
}

}  // namespace tolvanis
