#include "toolkit/window/dialog_answers.h"

#include <utility>

namespace toolkit {
namespace {

DialogAnswers& inForce() {
    static DialogAnswers answers;
    return answers;
}

} // namespace

void answerDialogsWith(DialogAnswers answers) { inForce() = std::move(answers); }

const DialogAnswers& dialogAnswers() { return inForce(); }

} // namespace toolkit
