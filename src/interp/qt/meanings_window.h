#pragma once
// The window in which single interpretations are chosen.

#include <QWidget>
#include <span>

#include "interp/meanings.h"
#include "platform/messages.h"

class QHBoxLayout;

namespace tolvanis {

class EvenRows;
class OptionGroup;

class MEANINGS : public QWidget {
    Q_OBJECT

  public:
    // Deletes itself when closed.
    explicit MEANINGS(Messages& messages);

    MeaningChoice Choice() const;

    // All of it where the screen has the room; its user may make it smaller.
    QSize minimumSizeHint() const override;

  Q_SIGNALS:
    void meaningChosen(const tolvanis::MeaningPlace& place);  // to be shown
    void mainWindowRequested();

  public Q_SLOTS:
    void OKSigns_Click();
    void OKHouses_Click();
    void OKRisingSign_Click();
    void OKAspects_Click();
    void Command1_Click();

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    OptionGroup* AddGroup(QHBoxLayout& row, const char* name, const char* caption,
                          std::span<const std::string_view> options, int chosen);
    void AddButton(EvenRows& buttons, const char* name, const char* caption, void (MEANINGS::*handler)());
    void ShowOrTell(const Result<MeaningPlace>& place);

    Messages& messages_;
    OptionGroup *Option1_, *Option2_, *Option3_, *Option4_, *Option5_;
};

}  // namespace tolvanis
