#include "app/count/comment_marker_check.h"

#include <optional>
#include <string>

#include "app/count/panel_choices.h"
#include "base/text_helpers.h"
#include "sources/marker_fault.h"

namespace quillomat {
namespace {

std::string MessageAbout(const MarkerFault& fault) {
  const std::string lineBreak(kCrLf);
  const std::string checkThem = "Check the comment markers in the 'Set parameters' panel";
  const std::string checkThemAndDisallow =
      lineBreak + lineBreak + checkThem + lineBreak + "and perhaps disallow comment markers.";
  switch (fault.kind) {
    case MarkerFault::Kind::kNoStart:
      return "If comment markers are allowed then at least one" + lineBreak +
             "start-comment marker must be non-empty." + checkThemAndDisallow;
    case MarkerFault::Kind::kEndWithoutStart:
      return "Cannot have an empty start-comment marker" + lineBreak +
             "with a non-empty end-comment marker." + checkThemAndDisallow;
    case MarkerFault::Kind::kSame:
      return "Start-comment and end-comment markers must be different." + lineBreak + lineBreak +
             checkThem + ".";
    case MarkerFault::Kind::kPartOfWord:
      break;
  }
  return "The way the parameters are set the start-comment marker" + lineBreak + "\"" +
         fault.marker + "\" could be part of a word." + lineBreak + lineBreak +
         "Check the start-comment markers in the 'Set parameters' panel and" + lineBreak +
         "perhaps disallow comment markers or restrict allowable words.";
}

}  // namespace

bool CheckCommentMarkers(ParamsForm& frmParams, const Messages& messages) {
  const std::optional<MarkerFault> fault = FindMarkerFault(ReadScanChoices(frmParams));
  if (fault) messages.Refuse(MessageAbout(*fault), "Error");
  return !fault;
}

}  // namespace quillomat
