// The registry of design codes: what a code dialog shows (caption, labels,
// lists, defaults, which fields can be edited) and what the command line
// accepts, and the functions both call. A dialog keeps its controls' texts
// in a ParamValues; choices and check boxes hold their state as an integer
// text, everything else the text as displayed, so that a generator sees
// exactly what the user saw. Each code builds its entry from one field table
// (field_table.h).
#ifndef ZEL_CORE_CODES_CODE_REGISTRY_H_
#define ZEL_CORE_CODES_CODE_REGISTRY_H_

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "core/document/curve_document.h"
#include "core/document/messages.h"

namespace zel {

enum class ParamKind {
  kNumber,   // a decimal number, shown in the field's format, read with atof
  kInteger,  // a whole number shown with "%d" (Step)
  kChoice,   // a list or a radio group; the value is the selected index
  kCheck,    // a check box; "1" checked, "0" not
  kList,     // numbers added one by one with an Insert button; "%g" texts
             // joined by commas
};

// What the user can do with a field in the current state of the dialog.
enum class FieldState {
  kEnabled,
  kReadOnly,  // shown, computed by the dialog, not typed over
  kDisabled,  // greyed
  kHidden,    // not shown at all
};

struct ParamDescriptor {
  std::string name;   // command-line option (--name) and key in ParamValues
  std::string label;  // the dialog's label, group caption or check box text
  ParamKind kind = ParamKind::kNumber;
  std::string default_text;  // as the dialog opens
  // Choice: the list or radio texts. Number: the items of an editable
  // drop-down, if it is one.
  std::vector<std::string> items;
  // Choice: the command-line words, in the order of `items`.
  std::vector<std::string> keys;
  bool radio = false;  // a choice shown as radio buttons in a group box
  // The group box the control sits in; "Outer/Inner" for a group inside
  // another one.
  std::string group;
  std::string format = "%g";  // how a value the dialog computes is shown
  std::string unit;           // a unit label after the control ("g", "%")
  // List: how many numbers it takes, and the message when it is full.
  int capacity = 0;
  std::string full_message;
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
  // Dialog initialisation after the defaults are in. Empty: none.
  std::function<void(ParamValues&)> on_open;
  // Dialog notification after `field` changed; may rewrite other fields.
  // Returns false after showing a message. Empty: no reaction.
  std::function<bool(ParamValues&, std::string_view field, MessageSink&)>
      on_change;
  // Whether a control can be edited in the current state. Empty: always.
  std::function<FieldState(const ParamValues&, std::string_view field)> state;
  // Checks made on OK before the new document is made. Empty: none.
  std::function<bool(const ParamValues&, MessageSink&)> precheck;
  // Validates in the code's fixed order and fills a new, empty document;
  // false after the first failure's message (the document stays empty).
  std::function<bool(const ParamValues&, CZELwDoc&, MessageSink&)> generate;
  // Positions of the members of the code's parameter record that no field
  // fills: always empty for a complete field table.
  std::function<std::vector<std::size_t>()> unbound_members;
};

// Every design code, in menu order.
const std::vector<CodeEntry>& DesignCodes();
// The code with this id (case-insensitive), or nullptr.
const CodeEntry* FindDesignCode(std::string_view id);

// The controls' texts when the dialog has opened (defaults, then the
// code's initialisation).
ParamValues DefaultValues(const CodeEntry& code);
const ParamDescriptor* FindParam(const CodeEntry& code, std::string_view name);
// The index of the choice whose command-line key is `key`, ignoring case; -1
// when there is none.
int FindChoiceKey(const ParamDescriptor& param, std::string_view key);

// The hooks, with their defaults for codes that leave them empty.
bool NotifyChanged(const CodeEntry& code, ParamValues& values,
                   std::string_view field, MessageSink& messages);
FieldState GetFieldState(const CodeEntry& code, const ParamValues& values,
                         std::string_view field);
bool PrecheckCode(const CodeEntry& code, const ParamValues& values,
                  MessageSink& messages);

// A number as a dialog shows it: "%g" in the C locale.
std::string DisplayText(double value);
// An integer or a choice index read as the dialog does: the whole part of
// atof of the text (0 when it is not a number).
int IntegerText(std::string_view text);

// The entries of each code family, listed by DesignCodes().
CodeEntry Atc306Entry();
CodeEntry Ubc88Entry();
CodeEntry Ubc97Entry();
CodeEntry Ibc2000Entry();
CodeEntry Gb50011Entry();
CodeEntry Jtj004Entry();
CodeEntry Gbj111Entry();
CodeEntry Kds2019Entry();
CodeEntry NewmarkHallEntry();
CodeEntry Kds2018Entry();
CodeEntry Kbc2005Entry();
CodeEntry Ntc2018Entry();
CodeEntry Shanghai2003Entry();
CodeEntry Nbc1995Entry();
CodeEntry Ec8DesignEntry();
CodeEntry Ec8ElasticEntry();
CodeEntry Japan2000Entry();
CodeEntry Korea2000Entry();
CodeEntry Korea1992Entry();
CodeEntry KoreaBridgeEntry();

}  // namespace zel

#endif  // ZEL_CORE_CODES_CODE_REGISTRY_H_
