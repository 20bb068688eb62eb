#define WIN32_LEAN_AND_MEAN
// The compiler's own headers may have set it already.
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
// After windows.h, which it needs.
#include <winspool.h>

#include <array>
#include <cstdio>

#include "base/platform.h"
#include "base/wide_text_windows.h"

namespace vrel::platform {
namespace {

std::wstring defaultPrinter() {
  DWORD length = 0;
  GetDefaultPrinterW(nullptr, &length);
  std::wstring name(length, L'\0');
  if (length == 0 || GetDefaultPrinterW(name.data(), &length) == 0) {
    return {};
  }
  name.resize(length - 1);
  return name;
}

// Sends a file's bytes to an open job; false when not all arrived.
bool sendFile(HANDLE printer, std::FILE* file) {
  std::array<char, 16384> block;
  for (std::size_t count = 0; (count = std::fread(block.data(), 1, block.size(), file)) > 0;) {
    DWORD written = 0;
    if (WritePrinter(printer, block.data(), static_cast<DWORD>(count), &written) == 0 ||
        written != count) {
      return false;
    }
  }
  return std::ferror(file) == 0;
}

bool sendJob(HANDLE printer, std::string_view job, std::FILE* file) {
  std::wstring name = wide(job);
  std::wstring kind = L"RAW";
  DOC_INFO_1W document = {name.data(), nullptr, kind.data()};
  if (StartDocPrinterW(printer, 1, reinterpret_cast<LPBYTE>(&document)) == 0) {
    return false;
  }
  const bool sent = StartPagePrinter(printer) != 0 && sendFile(printer, file);
  const bool ended = EndPagePrinter(printer) != 0;
  return EndDocPrinter(printer) != 0 && ended && sent;
}

}  // namespace

std::string quotedWord(std::string_view word) {
  // No name of a file or printer holds a double quote here.
  return "\"" + std::string(word) + "\"";
}

std::vector<Printer> printers() {
  constexpr DWORD kKinds = PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS;
  constexpr DWORD kLevel = 2;
  DWORD needed = 0;
  DWORD count = 0;
  EnumPrintersW(kKinds, nullptr, kLevel, nullptr, 0, &needed, &count);
  std::vector<BYTE> room(needed);
  if (needed == 0 ||
      EnumPrintersW(kKinds, nullptr, kLevel, room.data(), needed, &needed, &count) == 0) {
    return {};
  }
  const std::wstring preferred = defaultPrinter();
  const auto* found = reinterpret_cast<const PRINTER_INFO_2W*>(room.data());
  std::vector<Printer> list;
  for (DWORD i = 0; i < count; ++i) {
    const wchar_t* server = found[i].pServerName;
    list.push_back({.server = server == nullptr ? std::string() : utf8(server),
                    .name = utf8(found[i].pPrinterName),
                    .isDefault = preferred == found[i].pPrinterName});
  }
  return list;
}

std::string spoolCommand(const Printer& printer, const std::string& path) {
  const std::string& server = printer.server.empty() ? printer.name : printer.server;
  return "lpr -S " + quotedWord(server) + " -P " + quotedWord(printer.name) + " " +
         quotedWord(path);
}

std::optional<bool> spoolRaw(const Printer& printer, std::string_view job,
                             const std::string& path) {
  const std::shared_ptr<std::FILE> file = openFile(path, OpenMode::Read);
  std::wstring name = wide(printer.name);
  HANDLE handle = nullptr;
  if (!file || OpenPrinterW(name.data(), &handle, nullptr) == 0) {
    return false;
  }
  const bool sent = sendJob(handle, job, file.get());
  return ClosePrinter(handle) != 0 && sent;
}

}  // namespace vrel::platform
