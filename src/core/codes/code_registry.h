// The registry of design codes: what a code dialog shows (caption, labels,
// lists, defaults) and what the command line accepts, and the functions both
// call. A dialog keeps its controls' texts in a ParamValues; choices hold the
// selected index as text, everything else the text as displayed, so that a
// generator sees exactly what the user saw.
#ifndef ZEL_CORE_CODES_CODE_REGISTRY_H_
#define ZEL_CORE_CODES_CODE_REGISTRY_H_

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "core/codes/period_grid.h"
#include "core/document/curve_document.h"
#include "core/document/messages.h"

namespace zel {

enum class ParamKind {
  kNumber,   // shown with "%g", read back with atof
  kInteger,  // shown with "%d" (Step)
  kChoice,   // a list or a radio group; the value is the selected index
};

struct ParamDescriptor {
  std::string name;   // command-line option (--name) and key in ParamValues
  std::string label;  // the dialog's label or group caption
  ParamKind kind = ParamKind::kNumber;
  std::string default_text;  // as the dialog opens; choice: selected index
  // Choice: the list or radio texts. Number: the items of an editable
  // drop-down, if it is one.
  std::vector<std::string> items;
  // Choice: the command-line words, in the order of `items`.
  std::vector<std::string> keys;
  std::string group;  // group box the control sits in, if any
  // A field the dialog only enables once choice `switch_index` of the field
  // `switch_name` is selected (Ca and Cv need "User Defined"). The command
  // line makes that selection first when it was not given.
  std::string switch_name;
  int switch_index = -1;
};

using ParamValues = std::map<std::string, std::string, std::less<>>;

struct CodeEntry {
  std::string id;         // command-line name, e.g. "ubc97"
  std::string menu_text;  // Generate / Design Response Spectra entry
  std::string caption;    // dialog caption
  std::string title;      // document title of the spectrum
  std::vector<ParamDescriptor> params;
  // Dialog notification after `field` changed; may rewrite other fields.
  // Returns false after showing a message. Empty: no reaction.
  std::function<bool(ParamValues&, std::string_view field, MessageSink&)>
      on_change;
  // Whether a control can be edited in the current state. Empty: always.
  std::function<bool(const ParamValues&, std::string_view field)> enabled;
  // Checks made on OK before the new document is made. Empty: none.
  std::function<bool(const ParamValues&, MessageSink&)> precheck;
  // Validates in the code's fixed order and fills a new, empty document;
  // false after the first failure's message (the document stays empty).
  std::function<bool(const ParamValues&, CZELwDoc&, MessageSink&)> generate;
};

// Every design code, in menu order.
const std::vector<CodeEntry>& DesignCodes();
// The code with this id (case-insensitive), or nullptr.
const CodeEntry* FindDesignCode(std::string_view id);

// The controls' texts when the dialog opens.
ParamValues DefaultValues(const CodeEntry& code);
const ParamDescriptor* FindParam(const CodeEntry& code, std::string_view name);
// The index of the choice whose command-line key is `key`, ignoring case; -1
// when there is none.
int FindChoiceKey(const ParamDescriptor& param, std::string_view key);

// The hooks, with their defaults for codes that leave them empty.
bool NotifyChanged(const CodeEntry& code, ParamValues& values,
                   std::string_view field, MessageSink& messages);
bool IsFieldEnabled(const CodeEntry& code, const ParamValues& values,
                    std::string_view field);
bool PrecheckCode(const CodeEntry& code, const ParamValues& values,
                  MessageSink& messages);

// A number as a dialog shows it: "%g" in the C locale.
std::string DisplayText(double value);

// Reading values as the dialog does: atof of the text (0 when it is not a
// number, or absent); integers and choice indexes truncated from that.
std::string TextValue(const ParamValues& values, std::string_view name);
double NumberValue(const ParamValues& values, std::string_view name);
int IntegerValue(const ParamValues& values, std::string_view name);

// Descriptor builders for the entry files.
ParamDescriptor NumberParam(std::string name, std::string label,
                            std::string default_text, std::string group = {},
                            std::vector<std::string> drop_down = {});
ParamDescriptor ChoiceParam(std::string name, std::string label,
                            int default_index, std::vector<std::string> items,
                            std::vector<std::string> keys,
                            std::string group = {});

// The "Output Period" fields shared by every code: from, to, steps.
void AppendGridParams(std::vector<ParamDescriptor>& params);
PeriodGrid GridFromValues(const ParamValues& values);

// The entries of each code family, listed by DesignCodes().
CodeEntry Atc306Entry();
CodeEntry Ubc88Entry();
CodeEntry Ubc97Entry();
CodeEntry Ibc2000Entry();
CodeEntry Kds2019Entry();

}  // namespace zel

#endif  // ZEL_CORE_CODES_CODE_REGISTRY_H_
