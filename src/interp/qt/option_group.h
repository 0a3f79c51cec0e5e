#pragma once
// A framed group of option buttons of which one is chosen.

#include <QGroupBox>
#include <span>
#include <string_view>

class QButtonGroup;

namespace tolvanis {

// Tab enters the group at the chosen button; the arrow keys choose the next one or the one before, round and
// round. A double click on a button, or Enter on the chosen one, opens the choice.
class OptionGroup : public QGroupBox {
    Q_OBJECT

  public:
    // The buttons are named `name`_0, `name`_1 ...
    OptionGroup(const QString& name, const QString& caption, std::span<const std::string_view> options,
                int chosen);

    int Index() const;
    // Chooses a button and gives it the focus.
    void Choose(int index);

  Q_SIGNALS:
    void opened();

  protected:
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    bool HandleKey(int key);

    QButtonGroup* buttons_;
};

}  // namespace tolvanis
