// Does one step of publishing and prints, as JSON, what it took. The peers and the table are table.py's.

#include "bench/publish/preparation.h"

#include <QCoreApplication>

#include <iostream>

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    const std::string what = arguments.empty() ? "" : arguments[0];
    if (what == "prepare" && argc > 2) {
        return bench::measurePreparation({arguments.begin() + 1, arguments.end()});
    }
    if (what == "cancel" && argc > 3) {
        return bench::measureCancelling({arguments.begin() + 2, arguments.end()}, std::stoi(arguments[1]));
    }
    if (what == "upload" && argc == 4) {
        return bench::measureUpload(arguments[1], arguments[2]);
    }
    std::cerr << "usage: publish_bench prepare FILE… | cancel COUNT FILE… | upload FILE URL\n";
    return 2;
}
