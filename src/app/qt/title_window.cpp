#include "app/qt/title_window.h"

#include <QIcon>
#include <QLabel>
#include <QVBoxLayout>

#include "platform/qt/push_button.h"

namespace tolvanis {
namespace {

QLabel* Picture(const QWidget& window, int linesHigh) {
    auto* picture = new QLabel;
    const int side = window.fontMetrics().lineSpacing() * linesHigh;
    picture->setPixmap(
        QIcon(QStringLiteral(":/tolvanis.svg")).pixmap(QSize(side, side), window.devicePixelRatioF()));
    picture->setAlignment(Qt::AlignCenter);
    picture->setAccessibleName(QStringLiteral("A chart wheel"));
    return picture;
}

QLabel* Line(const QString& text, double scale = 1.0) {
    auto* line = new QLabel(text);
    QFont font = line->font();
    font.setPointSizeF(font.pointSizeF() * scale);
    line->setFont(font);
    line->setAlignment(Qt::AlignCenter);
    return line;
}

QPushButton* CloseButton(QVBoxLayout& layout) {
    QPushButton* button = MakePushButton("cmdOK", QStringLiteral("OK"));
    layout.addSpacing(8);
    layout.addWidget(button, 0, Qt::AlignCenter);
    button->setDefault(true);
    return button;
}

}  // namespace

Title::Title() {
    setObjectName(QStringLiteral("Title"));
    setWindowTitle(QStringLiteral("Tolvanis"));
    auto* layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->setContentsMargins(32, 24, 32, 16);
    layout->addWidget(Picture(*this, 14));
    layout->addWidget(Line(QStringLiteral("TOLVANIS"), 2.4));
    layout->addWidget(Line(QStringLiteral("Interpretation Program"), 1.3));
    connect(CloseButton(*layout), &QPushButton::clicked, this, &Title::cmdOK_Click);
}

void Title::cmdOK_Click() {
    accept();
}

About::About(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("About"));
    setWindowTitle(QStringLiteral("About Tolvanis"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->setContentsMargins(32, 24, 32, 16);
    layout->addWidget(Picture(*this, 6));
    layout->addWidget(Line(QStringLiteral("TOLVANIS"), 1.8));
    layout->addWidget(Line(QStringLiteral("Version " TOLVANIS_VERSION)));
    layout->addSpacing(8);
    auto* credits = new QLabel(QStringLiteral("Natal astrology: charts, wheels and reports.\n"
                                              "\n"
                                              "Copyright \u00a9 2026 the TOLVANIS developers.\n"
                                              "Free software under the MIT licence, without any warranty.\n"
                                              "\n"
                                              "Made with Qt %1, used under the GNU LGPL, version 3.\n"
                                              "Places of the cities files: GeoNames (geonames.org),\n"
                                              "used under the Creative Commons Attribution licence 4.0.\n"
                                              "The symbol font HORARY takes letters and signs from the\n"
                                              "DejaVu fonts, used under their free licence.")
                                   .arg(QString::fromLatin1(qVersion())));
    credits->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout->addWidget(credits);
    connect(CloseButton(*layout), &QPushButton::clicked, this, &QDialog::accept);
}

}  // namespace tolvanis
