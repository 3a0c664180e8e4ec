// SPDX-License-Identifier: MIT
// Qt's popover and windows keep to the contract of all of them.
#include <gtest/gtest.h>

#include <QKeyEvent>

#include "contract/WindowsContract.h"
#include "fakes/FakeStatusBar.h"
#include "platform/qt/TestApplication.h"
#include "platform/qt/widgets/QtView.h"

namespace zephrine {
namespace {

struct QtWindowsHarness {
    WindowFactory& windows() { return testApplication().windows(); }
    WidgetFactory& widgets() { return testApplication().widgets(); }
    StatusItemButton& button() { return statusButton; }
    const void* placeOf(View& view) { return qtView(view).widget().parentWidget(); }
    void dismiss(View& view) {
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QApplication::sendEvent(qtView(view).widget().window(), &escape);
    }
    void closeWindowOf(View& view) { qtView(view).widget().window()->close(); }
    template <typename Condition>
    void waitFor(Condition /*condition*/) {}  // everything happens at once

    FakeStatusItemButton statusButton;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Qt, WindowsContract, QtWindowsHarness);

}  // namespace
}  // namespace zephrine
