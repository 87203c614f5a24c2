// Between the program's UTF-8 and the toolkit's text.
#pragma once

#include <QString>
#include <QUrl>
#include <string>
#include <string_view>

namespace mardel {

// Bytes that are not UTF-8 become replacement characters.
QString ToQt(std::string_view text);
std::string FromQt(const QString& text);

// As ToQt, with "\r\n" and "\r" as "\n".
QString LinesToQt(std::string_view text);

// On one line: control characters become blanks.
QString OneLine(std::string_view text);

// One line for a menu, a button or a check box, where the toolkit would take "&" for a mnemonic.
QString ButtonText(std::string_view text);

// For a tooltip: plain text in lines of bounded width, where the toolkit would guess at markup.
QString TooltipText(std::string_view text);

// The file that a desktop names, byte for byte; "" for what is no file.
std::string LocalPath(const QUrl& url);

// For a window's title, where the toolkit would take "[*]" for a mark of changes.
QString TitleText(std::string_view text);

}  // namespace mardel
