#pragma once
// The title window, shown at start when an option asks for it, and the About window.

#include <QDialog>

namespace tolvanis {

class Title : public QDialog {
    Q_OBJECT

  public:
    Title();

  public Q_SLOTS:
    void cmdOK_Click();
};

// Version, licence and credits. Deletes itself when closed.
class About : public QDialog {
    Q_OBJECT

  public:
    explicit About(QWidget* parent);
};

}  // namespace tolvanis
