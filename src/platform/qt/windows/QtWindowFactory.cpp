// SPDX-License-Identifier: MIT
// One maker a kind of window.
#include "platform/qt/windows/QtWindowFactory.h"

#include <QMessageBox>

#include "platform/qt/drawing/PlainText.h"
#include "platform/qt/windows/QtPopover.h"
#include "platform/qt/windows/QtWindow.h"

namespace zephrine {

std::unique_ptr<Popover> QtWindowFactory::makePopover() {
    return std::make_unique<QtPopover>(appearance_, runLoop_, clickGuard_);
}

std::unique_ptr<Window> QtWindowFactory::makeWindow(const std::string& title, Size contentSize) {
    return std::make_unique<QtWindow>(title, contentSize);
}

void QtWindowFactory::runModalAlert(const std::string& messageText,
                                    const std::string& informativeText) {
    QMessageBox alert(QMessageBox::Warning, QStringLiteral("Zephrine"), fromUTF8(messageText));
    alert.setTextFormat(Qt::PlainText);
    // The text format above does not reach the informative text, which Qt takes for markup when it
    // looks like some.
    alert.setInformativeText(shownLiterally(fromUTF8(informativeText)));
    alert.exec();
}

}  // namespace zephrine
