#include "output/postscript_prolog.h"

#include <fmt/format.h>

#include <algorithm>

#include "model/date.h"

namespace vrel {
namespace {

constexpr const char* kCreationPattern = "%Y/%m/%d %H:%M:%S";

constexpr std::string_view kComments =
    "%!PS-Adobe-\n"
    "%%DocumentFonts: {}\n"
    "%%Title: {}\n"
    "%%Creator: Vrel\n"
    "%%For: {}\n"
    "%%CreationDate: {}\n"
    "%%Pages: {}\n"
    "%%EndComments\n";

constexpr std::string_view kBanner =
    "%------------------------------------------------------\n"
    "%\n"
    "% Postscript Printout of the Kaprilon Data Editor.\n"
    "%\n"
    "% This output requires a postscript printer.\n"
    "% If this message prints out, you may have one of the\n"
    "% following problems:\n"
    "%\n"
    "% 1) your printer is not a postscript printer.\n"
    "%\n"
    "% 2) your printer is not currently configured to print\n"
    "%    in postscript.\n"
    "%\n"
    "% 3) your print command/spooler does not correctly send\n"
    "%    this file as a postscript file.\n"
    "%\n"
    "%------------------------------------------------------\n";

// In UTF-8 a byte from 192 on begins a character and bytes from 128 to 191 continue it; C2 and C3
// begin those of two bytes that ISO Latin 1 has, from A0 on.
constexpr std::string_view kShowUtf8 = R"(/VrelText 8 dict def
VrelText begin
/latin StandardEncoding 256 array copy def
latin 160 ISOLatin1Encoding 160 96 getinterval putinterval
/bytes 256 string def
/putByte { bytes used 3 -1 roll put /used used 1 add def } bind def
end
[ /Helvetica /Helvetica-Bold ] {
  dup findfont dup length dict begin
  { 1 index /FID eq { pop pop } { def } ifelse } forall
  /Encoding VrelText /latin get def
  currentdict end definefont pop
} forall
% Shows UTF-8; what ISO Latin 1 does not have is a question mark.
/show {
  VrelText begin
  dup length bytes length gt { /bytes 1 index length string def } if
  /used 0 def /lead 0 def /more 0 def
  {
    dup 128 lt { putByte /lead 0 def } {
      dup 192 ge lead 0 eq or { /lead exch def /more 0 def 63 putByte } {
        /more more 1 add def
        lead 194 eq lead 195 eq or more 1 eq and
        { 63 and lead 3 and 6 bitshift or dup 160 lt { pop 63 } if } { pop 63 } ifelse
        bytes exch used 1 sub exch put
      } ifelse
    } ifelse
  } forall
  bytes 0 used getinterval
  end
  systemdict /show get exec
} bind def
)";

/// A text for a comment, which ends with its line.
std::string commentText(std::string_view text) {
  std::string line(text);
  std::replace_if(
      line.begin(), line.end(), [](char byte) { return static_cast<unsigned char>(byte) < ' '; },
      ' ');
  return line;
}

}  // namespace

void writeProlog(const PrintJob& job, const PrologFacts& facts, PostScriptPen& pen) {
  std::string created;
  appendDate(created, job.created, kCreationPattern, Quoting::None);
  pen.text().write(fmt::format(kComments, kBodyFont, commentText(job.title),
                               commentText(job.userName), created, facts.totalPages));
  pen.text().write(kBanner);
  if (facts.isBeyondAscii) {
    pen.text().write(kShowUtf8);
  }
  pen.selectFont(kBodyFont, facts.fontSize);
  pen.text().write("%%EndProlog\n");
}

}  // namespace vrel
