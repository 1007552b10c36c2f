// The program: the platform, the form, the window that shows it.
#include "app/form_load.h"
#include "app/wiring.h"
#include "form/zevlin.h"
#include "toolkit/window/application.h"
#include "toolkit/window/program.h"
#include "toolkit/window/window.h"

int main(int argumentCount, char** arguments) {
    toolkit::Application application(argumentCount, arguments);
    zev::Zevlin form;
    toolkit::Window window(zev::wire(form));
    zev::Form_Load(form, application.commandLine());
    window.update();
    const int result = application.run();
    // A print service that still hasn't answered is left to itself.
    if (form.PrinterAsked.isAsked() && !form.PrinterAsked.isAnswered()) toolkit::endProgram(result);
    return result;
}
