#pragma once
// Printing on the system's printers, or into a PDF file where there is none.

#include <QPainter>
#include <functional>
#include <string>

#include "platform/file_dialogs.h"
#include "platform/messages.h"
#include "text/print_pages.h"

class QPagedPaintDevice;

namespace tolvanis {

struct PrintServices {
    FileDialogs& dialogs;
    Messages& messages;
    std::function<Path()> directory;  // where PDF files are proposed, asked for when one is
};

// Draws a document; a new page is begun with QPagedPaintDevice::newPage. The painter's units are the
// device's.
using PaintDocument = std::function<void(QPagedPaintDevice& device, QPainter& painter)>;

// Asks the user for the printer, or where the system has none for a PDF file ("<documentName>.pdf" is
// proposed), and prints under the hourglass. A fault is told with its reason; a PDF file is replaced whole or
// not at all. Returns whether the document was printed.
bool PrintDocument(const PrintServices& services, const std::string& documentName,
                   const PaintDocument& paint);

// Prints text pages in the listing font, six lines to the inch. A page with more lines than the paper holds
// goes on on another sheet, or, where the text wants whole pages, all lines are set closer. Lines of up to 80
// characters that are too wide for the paper are narrowed with all others; a longer one is narrowed alone,
// and where it would need letters of less than half their width it is continued on the next line.
bool PrintPages(const PrintServices& services, const std::string& documentName, const PrintText& text);

}  // namespace tolvanis
