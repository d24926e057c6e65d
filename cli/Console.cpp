#include "cli/Console.h"

#include "cli/StatusLine.h"

#include <iostream>

namespace {

void write(std::ostream &stream, const QString &text) {
    const QByteArray bytes = text.toUtf8();
    const StatusLine::Pause pause;
    stream.write(bytes.constData(), bytes.size());
    stream.flush();
}

} // namespace

void console::out(const QString &text) {
    write(std::cout, text);
}

void console::err(const QString &text) {
    write(std::cerr, text);
}

void console::outLine(const QString &text) {
    write(std::cout, text + QLatin1Char('\n'));
}

void console::errLine(const QString &text) {
    write(std::cerr, text + QLatin1Char('\n'));
}
