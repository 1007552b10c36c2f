#include "toolkit/window/dialog.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include <QtGui/QScreen>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QInputDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

#include "toolkit/base/qt_text.h"
#include "toolkit/text/typed_text.h"
#include "toolkit/window/dialog_answers.h"
#include "toolkit/window/input/qt_event_dispatcher.h"
#include "toolkit/window/qt_box_parent.h"
#include "toolkit/window/qt_window.h"

namespace toolkit {
namespace {

constexpr std::array qtButtons{
    std::pair{Answer::Ok, QMessageBox::Ok},       std::pair{Answer::Cancel, QMessageBox::Cancel},
    std::pair{Answer::Yes, QMessageBox::Yes},     std::pair{Answer::No, QMessageBox::No},
    std::pair{Answer::SaveAs, QMessageBox::Save},
};

QMessageBox::StandardButton qButton(Answer answer) {
    return std::ranges::find(qtButtons, answer, [](auto pair) { return pair.first; })->second;
}

/// In the order of the box, the one that closing the box answers last.
std::vector<Answer> answersOf(Buttons buttons) {
    switch (buttons) {
    case Buttons::Ok:
        return {Answer::Ok};
    case Buttons::OkCancel:
        return {Answer::Ok, Answer::Cancel};
    case Buttons::YesNo:
        return {Answer::Yes, Answer::No};
    case Buttons::YesNoCancel:
        return {Answer::Yes, Answer::No, Answer::Cancel};
    case Buttons::YesNoSaveAs:
        return {Answer::Yes, Answer::SaveAs, Answer::No};
    }
    return {};
}

QMessageBox::Icon qIcon(Icon icon) {
    switch (icon) {
    case Icon::None:
        return QMessageBox::NoIcon;
    case Icon::Exclamation:
        return QMessageBox::Warning;
    case Icon::Question:
        return QMessageBox::Question;
    case Icon::Information:
        return QMessageBox::Information;
    }
    return QMessageBox::NoIcon;
}

QString titleOf(const std::string& title) {
    return title.empty() ? QStringLiteral("Zevlin") : qString(title);
}

Answer showOnScreen(const MessageBox& box) {
    const std::vector<Answer> answers = answersOf(box.buttons);
    QMessageBox shown(boxParent());
    shown.setWindowTitle(titleOf(box.title));
    shown.setTextFormat(Qt::PlainText);
    shown.setText(qString(box.text));
    shown.setAccessibleDescription(qString(box.text));
    shown.setIcon(qIcon(box.icon));
    for (const Answer answer : answers) {
        QPushButton* button = shown.addButton(qButton(answer));
        if (answer == Answer::SaveAs) button->setText(QStringLiteral("Save &As"));
    }
    shown.setDefaultButton(qButton(box.preset.value_or(answers.front())));
    const int pressed = shown.exec();
    const auto found = std::ranges::find(qtButtons, pressed, [](auto pair) { return pair.second; });
    return found == qtButtons.end() ? answers.back() : found->first;
}

/// Room for a name, or for what an old name shall become, without scrolling.
int lineWidth(const QDialog& box) {
    constexpr int usual = 400;
    constexpr int besideIt = 40; // frame and margins, on a screen that is narrower
    const QScreen* screen = box.screen();
    return screen == nullptr ? usual
                             : std::min(usual, screen->availableGeometry().width() - besideIt);
}

std::string askOnScreen(const InputBox& box) {
    QInputDialog shown(boxParent());
    shown.setWindowTitle(titleOf(box.title));
    shown.setLabelText(qString(box.prompt));
    shown.setTextValue(qString(box.preset));
    for (QLabel* label : shown.findChildren<QLabel*>()) label->setTextFormat(Qt::PlainText);
    for (QLineEdit* line : shown.findChildren<QLineEdit*>()) {
        line->setAccessibleName(qString(box.prompt));
        line->setMinimumWidth(lineWidth(shown));
    }
    return shown.exec() == QDialog::Accepted ? ansiFromTyped(shown.textValue().toStdString())
                                             : std::string();
}

std::filesystem::path askForFileOnScreen(const FileQuestion& question) {
    QFileDialog shown(boxParent());
    shown.setWindowTitle(titleOf(question.title));
    shown.setAcceptMode(QFileDialog::AcceptSave);
    shown.setNameFilter(qString(question.pattern));
    shown.setDefaultSuffix(qString(question.pattern).section(u'.', -1));
    const QString preset = QString::fromStdU16String(question.preset.u16string());
    shown.setDirectory(QFileInfo(preset).path());
    shown.selectFile(QFileInfo(preset).fileName());
    if (shown.exec() != QDialog::Accepted) return {};
    return shown.selectedFiles().constFirst().toStdU16String();
}

std::string withoutControlCharacters(std::string text) {
    std::erase_if(text, [](char character) { return code(character) < ' ' || character == 0x7F; });
    return text;
}

} // namespace

Answer show(const MessageBox& box) {
    updateWindow();
    const Answer answer =
        dialogAnswers().message ? dialogAnswers().message(box) : showOnScreen(box);
    rethrowKept();
    return answer;
}

void tell(std::string_view text, Icon icon, std::string_view title) {
    // There is only one button.
    (void)show({.text = std::string(text), .icon = icon, .title = std::string(title)});
}

std::string ask(const InputBox& box) {
    updateWindow();
    std::string answer = dialogAnswers().input ? dialogAnswers().input(box) : askOnScreen(box);
    rethrowKept();
    return withoutControlCharacters(std::move(answer));
}

std::filesystem::path askForFile(const FileQuestion& question) {
    updateWindow();
    auto path =
        dialogAnswers().file ? dialogAnswers().file(question) : askForFileOnScreen(question);
    rethrowKept();
    return path;
}

} // namespace toolkit
