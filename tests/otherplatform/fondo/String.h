#pragma once

#include <QString>
#include <string>

namespace Fondo {

class String
{
public:
    String() = default;
    String(const std::string& text) : text(QString::fromStdString(text)) {}
    virtual ~String() = default;
    String(const String&) = default;
    String& operator=(const String&) = default;

    static String fromUTF8(const std::string& text) { return String(text); }
    virtual operator std::wstring() const { return text.toStdWString(); }
    friend bool operator==(const String& a, const String& b) { return a.text == b.text; }

private:
    QString text;
};

} // namespace Fondo
