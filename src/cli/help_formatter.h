// How the help of the terminal looks: options with their opposites, explained in lines that fit.
#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace quillomat {

class HelpFormatter final : public CLI::Formatter {
 public:
  HelpFormatter();

  /// The option's names: "--numerals, --no-numerals".
  [[nodiscard]] std::string make_option_name(const CLI::Option* option,
                                             bool isPositional) const override;
  /// What it takes: " PATH".
  [[nodiscard]] std::string make_option_opts(const CLI::Option* option) const override;
  [[nodiscard]] std::string make_option_desc(const CLI::Option* option) const override;
};

}  // namespace quillomat
