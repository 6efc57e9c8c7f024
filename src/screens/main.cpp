// veldrana: the desktop program.
#include <exception>
#include <filesystem>
#include <iostream>

#include <QApplication>

#include "platform/environment.h"
#include "screens/desktop.h"

int main(int count, char** words) {
    try {
        QApplication application(count, words);
        QApplication::setApplicationName("Veldrana");
        const std::filesystem::path home = veldrana::executable_folder(words[0]);
        veldrana::Desktop desktop(home, {});
        return desktop.run();
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
