// A tool of the build: writes the manual page of quillomat-cli, or what a shell needs to complete
// its options, on standard output.
//   quillomat_manual man|bash|zsh|fish
#include <exception>
#include <iostream>
#include <string>
#include <string_view>

#include "base/text_helpers.h"
#include "base/version.h"
#include "cli/command_line.h"

namespace quillomat {
namespace {

bool TakesPath(const OptionDescription& option) {
  return option.value.find("PATH") != std::string::npos || option.value.starts_with("FILE");
}

/// For the manual's formatter: hyphens that are hyphens, no line that looks like a request.
std::string ForManual(std::string text) {
  text = ReplaceAll(text, "\\", "\\e");
  text = ReplaceAll(text, "-", "\\-");
  if (text.starts_with('.') || text.starts_with('\'')) text.insert(0, "\\&");
  return ReplaceAll(ReplaceAll(text, "\n.", "\n\\&."), "\n'", "\n\\&'");
}

void WriteManual(std::ostream& out) {
  out << R"(.TH QUILLOMAT\-CLI 1 "" "Quillomat )" << VersionText() << "\" \"User Commands\"\n"
      << ".SH NAME\nquillomat\\-cli \\- count how often each word occurs in a text\n"
      << ".SH SYNOPSIS\n.B quillomat\\-cli\n[\\fIOPTION\\fR]... \\fIPATH\\fR...\n.br\n"
         ".B quillomat\\-cli\n[\\fIOPTION\\fR]... "
         "(\\fB\\-\\-file\\fR|\\fB\\-\\-folder\\fR|\\fB\\-\\-text\\fR) \\fIPATH\\fR\n"
      << ".SH DESCRIPTION\n"
      << "Splits a text into words under rules of your choice, counts them, and prints the list on "
         "standard output. Messages go to standard error.\n.PP\n"
         "\\fIPATH\\fRs are files, folders, pipes, and \\fB\\-\\fR for standard input. Each is "
         "read "
         "once, as it comes, whatever its size; several are counted together, in the order given. "
         "A "
         "file whose name begins with a hyphen is given after \\fB\\-\\-\\fR.\n"
      << ".SH OPTIONS\n";
  for (const OptionDescription& option : DescribeOptions()) {
    out << ".TP\n";
    if (!option.shortName.empty()) out << "\\fB" << ForManual(option.shortName) << "\\fR, ";
    out << "\\fB" << ForManual(option.name) << "\\fR";
    if (!option.value.empty()) out << " \\fI" << ForManual(option.value) << "\\fR";
    out << '\n' << ForManual(option.description) << ".\n";
  }
  out << ".SH NOTES\n.nf\n"
      << ForManual(HelpNotes()) << "\n.fi\n"
      << ".SH ENVIRONMENT\n.TP\n\\fBQUILLOMAT_DATA\\fR\nThe folder of the data files, where it is "
         "not the one that was installed.\n"
      << ".TP\n\\fBXDG_CONFIG_HOME\\fR\nWhere the user's settings are; \\fI~/.config\\fR if not "
         "set.\n.TP\n\\fBNO_COLOR\\fR\nIf set, messages on a terminal have no colours.\n"
      << ".SH SEE ALSO\n.BR quillomat (1)\n";
}

void WriteBash(std::ostream& out) {
  std::string all;
  std::string withPaths;
  for (const OptionDescription& option : DescribeOptions()) {
    all += (all.empty() ? "" : " ") + option.name;
    if (TakesPath(option)) withPaths += (withPaths.empty() ? "" : "|") + option.name;
  }
  out << "# bash completion for quillomat-cli\n"
      << "_quillomat_cli() {\n"
      << "  local cur=${COMP_WORDS[COMP_CWORD]} prev=${COMP_WORDS[COMP_CWORD-1]}\n"
      << "  case $prev in\n"
      << "    " << withPaths << ") mapfile -t COMPREPLY < <(compgen -f -- \"$cur\"); return ;;\n"
      << "    --order) mapfile -t COMPREPLY < <(compgen -W 'frequency alphabetical' -- \"$cur\"); "
         "return ;;\n"
      << "  esac\n"
      << "  if [[ $cur == -* ]]; then\n"
      << "    mapfile -t COMPREPLY < <(compgen -W '" << all << "' -- \"$cur\")\n"
      << "  else\n"
      << "    mapfile -t COMPREPLY < <(compgen -f -- \"$cur\")\n"
      << "  fi\n"
      << "}\n"
      << "complete -o filenames -F _quillomat_cli quillomat-cli\n";
}

/// Between single quotes.
std::string Quoted(const std::string& text) {
  return "'" + ReplaceAll(text, "'", "'\\''") + "'";
}

void WriteZsh(std::ostream& out) {
  out << "#compdef quillomat-cli\n_arguments \\\n";
  for (const OptionDescription& option : DescribeOptions()) {
    std::string about = ReplaceAll(option.description, "\\", "\\\\");
    for (const char* const sign : {"[", "]", ":"}) {
      about = ReplaceAll(about, sign, std::string("\\") + sign);
    }
    std::string line = "*" + option.name + "[" + about + "]";
    if (!option.value.empty())
      line += ":" + option.value + ":" + (TakesPath(option) ? "_files" : "");
    out << "  " << Quoted(line) << " \\\n";
  }
  out << "  '*:file:_files'\n";
}

void WriteFish(std::ostream& out) {
  for (const OptionDescription& option : DescribeOptions()) {
    const std::string value = option.value.empty() ? "" : (TakesPath(option) ? " -r -F" : " -x");
    out << "complete -c quillomat-cli -l " << option.name.substr(2) << value << " -d "
        << ReplaceAll(Quoted(ReplaceAll(option.description, "\\", "\\\\")), "'\\''", "\\'") << '\n';
  }
}

}  // namespace
}  // namespace quillomat

int main(int argc, char** argv) {
  using namespace quillomat;
  const std::string_view kind = argc == 2 ? argv[1] : "";
  try {
    if (kind == "man")
      WriteManual(std::cout);
    else if (kind == "bash")
      WriteBash(std::cout);
    else if (kind == "zsh")
      WriteZsh(std::cout);
    else if (kind == "fish")
      WriteFish(std::cout);
    else
      return 2;
    return std::cout.flush() ? 0 : 1;
  } catch (const std::exception& error) {
    std::cerr << "quillomat_manual: " << error.what() << '\n';
    return 1;
  }
}
