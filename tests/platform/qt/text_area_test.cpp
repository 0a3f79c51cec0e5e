// The text area as its reader sees it.
#include "platform/qt/text_area.h"

#include <gtest/gtest.h>

#include <memory>

namespace tolvanis {
namespace {

TEST(TextArea, KeepsTheFieldsOfARecordInTheirOrder) {
    const std::unique_ptr<QPlainTextEdit> area(MakeTextArea("txtContent", "Text of the file"));
    area->resize(800, 200);
    area->show();
    for (const char* name : {"Ann", "\u05D3\u05D5\u05D3", "\u0627\u062D\u0645\u062F"}) {
        SetAreaText(*area, std::string(name) + ",22 Sep 1949,9.05,A,5,073.59,40.45\r\n");
        QTextCursor cursor(area->document());
        int left = -1;
        for (const char* field : {name, "Sep", "9.05", "A,5", "073.59", "40.45"}) {
            cursor = area->document()->find(QString::fromUtf8(field), cursor);
            EXPECT_GT(area->cursorRect(cursor).x(), left) << name << field;
            left = area->cursorRect(cursor).x();
        }
    }
}

}  // namespace
}  // namespace tolvanis
