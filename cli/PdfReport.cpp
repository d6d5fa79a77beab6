#include "PdfReport.h"

#include <dlfcn.h>
#include <limits.h>
#include <unistd.h>

namespace {
// The module lives beside the program.
std::string moduleFile()
{
    char buffer[PATH_MAX];
    const ssize_t length = readlink("/proc/self/exe", buffer, sizeof buffer - 1);
    if (length <= 0)
        return kPdfModuleName;
    std::string program(buffer, static_cast<size_t>(length));
    return program.substr(0, program.rfind('/') + 1) + kPdfModuleName;
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
