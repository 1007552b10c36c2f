// Working the dialogs of the platform and the program's own small forms.
#include "toolkit/testing/test_dialogs.h"

#include <algorithm>

#include <QtCore/QTimer>
#include <QtGui/QClipboard>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QSpinBox>

#include "toolkit/base/qt_text.h"
#include "toolkit/model/label.h"
#include "toolkit/picture/qt_picture.h"
#include "toolkit/window/input/qt_key_input.h"

namespace toolkit::test {
namespace {

QDialog* openDialog() {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    return qobject_cast<QMessageBox*>(dialog) == nullptr ? dialog : nullptr;
}

/// A dialog runs an event loop of its own, so what works it must wait in the queue from before.
void onceOpen(std::function<void(QDialog&)> act) {
    QTimer::singleShot(0, qApp, [act = std::move(act)] {
        if (openDialog() == nullptr) return onceOpen(act);
        // What the dialog itself does when it has come up goes first.
        QTimer::singleShot(0, qApp, [act] { act(*openDialog()); });
    });
}

std::string plain(const QString& text) { return paintedText(ansiText(text)); }

QComboBox& listAt(int list) { return *openDialog()->findChildren<QComboBox*>().at(list); }

template <typename Button>
Button& buttonWith(std::string_view caption) {
    const auto buttons = openDialog()->findChildren<Button*>();
    return **std::ranges::find(buttons, caption,
                               [](const Button* button) { return plain(button->text()); });
}

/// What the label with this text stands beside.
QSpinBox& numberBeside(std::string_view text) {
    const auto labels = openDialog()->findChildren<QLabel*>();
    const auto label =
        std::ranges::find(labels, text, [](const QLabel* each) { return plain(each->text()); });
    return dynamic_cast<QSpinBox&>(*(*label)->buddy());
}

} // namespace

void endNextDialog(ShownDialog& seen) {
    onceOpen([&seen](QDialog& dialog) {
        seen.title = ansiText(dialog.windowTitle());
        for (const auto* button : dialog.findChildren<QPushButton*>())
            seen.buttons.push_back(plain(button->text()));
        dialog.reject();
    });
}

void driveNextDialog(std::function<void(DialogDriver&)> act) {
    onceOpen([act = std::move(act)](QDialog&) {
        DialogDriver driver;
        act(driver);
    });
}

std::string DialogDriver::title() const { return ansiText(openDialog()->windowTitle()); }

std::vector<std::string> DialogDriver::labels() const {
    std::vector<std::string> texts;
    for (const auto* label : openDialog()->findChildren<QLabel*>())
        texts.push_back(plain(label->text()));
    return texts;
}

std::vector<std::string> DialogDriver::listRows(int list) const {
    std::vector<std::string> rows;
    const int count = listAt(list).count();
    rows.reserve(static_cast<std::size_t>(count));
    for (int row = 0; row < count; ++row) rows.push_back(ansiText(listAt(list).itemText(row)));
    return rows;
}

std::string DialogDriver::chosen(int list) const { return ansiText(listAt(list).currentText()); }

bool DialogDriver::choose(std::string_view row) {
    for (QComboBox* list : openDialog()->findChildren<QComboBox*>()) {
        const int index = list->findText(qString(row));
        if (index < 0) continue;
        list->setCurrentIndex(index);
        return true;
    }
    return false;
}

void DialogDriver::choose(int list, int row) { listAt(list).setCurrentIndex(row); }

void DialogDriver::typeInto(int list, int keyCode, std::string_view text) {
    const KeyStroke stroke = keyStrokeOf(keyCode, 0);
    QKeyEvent event(QEvent::KeyPress, stroke.key, stroke.modifiers, qString(text));
    QCoreApplication::sendEvent(&listAt(list), &event);
}

bool DialogDriver::isListEnabled(int list) const { return listAt(list).isEnabled(); }

void DialogDriver::setNumber(std::string_view label, int value) {
    numberBeside(label).setValue(value);
}

int DialogDriver::number(std::string_view label) const { return numberBeside(label).value(); }

bool DialogDriver::isNumberEnabled(std::string_view label) const {
    return numberBeside(label).isEnabled();
}

void DialogDriver::turnOn(std::string_view option) { buttonWith<QRadioButton>(option).click(); }

bool DialogDriver::isOn(std::string_view option) const {
    return buttonWith<QRadioButton>(option).isChecked();
}

bool DialogDriver::isEnabled(std::string_view option) const {
    return buttonWith<QRadioButton>(option).isEnabled();
}

void DialogDriver::press(std::string_view button) { buttonWith<QPushButton>(button).click(); }

} // namespace toolkit::test
