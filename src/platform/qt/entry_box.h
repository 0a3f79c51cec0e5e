#pragma once
// A one-line text box that selects its whole text when it gets the focus and can be limited to some
// characters.

#include <QLineEdit>
#include <QValidator>

namespace tolvanis {

class EntryBox : public QLineEdit {
    Q_OBJECT

  public:
    // `accepted` are the only characters that the user can enter, by typing, pasting or dropping; empty for
    // any. `width` is the number of characters that the box shows, 0 to let the layout choose.
    explicit EntryBox(const QString& accepted = {}, int width = 0, QWidget* parent = nullptr);

    // Sets the text as it is, also one that the user could not type. Does nothing when it is there already.
    void Fill(const QString& text);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    QString accepted_;
    QValidator* filter_ = nullptr;
    bool focusedByMouse_ = false;
};

}  // namespace tolvanis
