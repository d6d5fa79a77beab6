#include "PdfReport.h"

#include <dlfcn.h>
#include <limits.h>
#include <unistd.h>

namespace {
// The module lives beside the program in the build tree, and in "<prefix>/lib/swale/" when the
// program is installed in "<prefix>/bin".
std::string moduleFile()
{
    char buffer[PATH_MAX];
    const ssize_t length = readlink("/proc/self/exe", buffer, sizeof buffer - 1);
    if (length <= 0)
        return kPdfModuleName;
    const std::string program(buffer, static_cast<size_t>(length));
    const std::string folder = program.substr(0, program.rfind('/') + 1);
    const std::string beside = folder + kPdfModuleName;
    if (access(beside.c_str(), R_OK) == 0)
        return beside;
    return folder + "../lib/swale/" + kPdfModuleName;
}
} // namespace

bool writeProjectPdf(const std::string &pdfPath, const SwaleProject &project,
                     const std::string &projectPath, std::string &error)
{
    using Writer = bool (*)(const std::string &, const SwaleProject &, const std::string &,
                            std::string &);
    const std::string file = moduleFile();
    void *module = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!module) {
        error = "the PDF writer " + file + " could not be loaded: " + dlerror();
        return false;
    }
    const auto writer = reinterpret_cast<Writer>(dlsym(module, kPdfWriterSymbol));
    if (!writer) {
        error = "the PDF writer " + file + " has no entry point " + kPdfWriterSymbol;
        return false;
    }
    // The module stays loaded: Qt's application object inside it lives until the program ends.
    return writer(pdfPath, project, projectPath, error);
}
