#include "core/records/record_catalog.h"

#include <unistd.h>

#include <array>

namespace zel {
namespace {

constexpr std::array<CatalogEntry, kCatalogSize> kCatalog = {{
    {"1940, El Centro Site, 270 Deg", "Elcent_h.dbs",
     "Peak = 0.3569 g  Duration = 53.72 sec"},
    {"1940, El Centro Site, 180 Deg", "Elcent_t.dbs",
     "Peak = 0.2142 g  Duration = 53.46 sec"},
    {"1940, El Centro Site, Vertical", "Elcent_v.dbs",
     "Peak = 0.2468 g  Duration = 53.78 sec"},
    {"1952, Taft Lincoln School, 69 Deg", "Taft_h.dbs",
     "Peak = -0.1557   Duration = 54.38 sec"},
    {"1952, Taft Lincoln School, 339 Deg", "Taft_t.dbs",
     "Peak = -0.1793   Duration = 54.40 sec"},
    {"1952, Taft Lincoln School, Vertical", "Taft_v.dbs",
     "Peak =  0.1048   Duration = 54.26 sec"},
    {"1952, Hollywood Storage P.E., 270 Deg", "Holly_h.dbs",
     "Peak = 0.05923 g  Duration = 78.62 sec"},
    {"1952, Hollywood Storage P.E., 0 Deg", "Holly_t.dbs",
     "Peak = 0.04204 g  Duration = 78.62 sec"},
    {"1952, Hollywood Storage P.E., Vertical", "Holly_v.dbs",
     "Peak = 0.02046 g  Duration = 78.58 sec"},
    {"1971, San Fernando, 69 Deg", "Sanfer_h.dbs",
     "Peak = 0.3154 g  Duration = 61.84 sec"},
    {"1971, San Fernando, 159 Deg", "Sanfer_t.dbs",
     "Peak = 0.2706 g  Duration = 61.88 sec"},
    {"1971, San Fernando, Down", "Sanfer_v.dbs",
     "Peak = -0.1563 g  Duration = 61.86 sec"},
    {"1979, James RD. El Centro, 220 Deg", "James_h.dbs",
     "Peak = 0.3673 g  Duration = 37.68 sec"},
    {"1979, James RD. El Centro, 310 Deg", "James_t.dbs",
     "Peak = -0.5502 g  Duration = 37.82 sec"},
    {"1979, James RD. El Centro, Up", "James_v.dbs",
     "Peak = 0.4784 g  Duration = 39.36 sec"},
    {"1979, Bonds Corner El Centro, 220 Deg", "Bonds_h.dbs",
     "Peak = 0.7777 g  Duration = 37.68 sec"},
    {"1979, Bonds Corner El Centro, 310 Deg", "Bonds_t.dbs",
     "Peak = -0.5952 g  Duration = 37.82 sec"},
    {"1979, Bonds Corner El Centro, Up", "Bonds_v.dbs",
     "Peak = -0.3273 g  Duration = 37.84 sec"},
    {"1985, Mexico City, Station 1, 180 Deg", "mexcit2.dbs",
     "Peak = -0.1714 g  Duration = 180.1 sec"},
    {"1985, Mexico City, Station 1, 270 Deg", "mexcit1.dbs",
     "Peak = -0.1000 g  Duration = 180.1 sec"},
    {"1994, Northridge, Sylmar County Hosp., 90 Deg", "nridge1.dbs",
     "Peak = 0.6047 g  Duration = 59.98 sec"},
    {"1994, Northridge, Santa Monica, City Hall Grounds, 0 Deg", "s_monic2.dbs",
     "Peak = -0.3703 g  Duration = 59.98 sec"},
    {"1994, Northridge, Santa Monica, City Hall Grounds, 90 Deg",
     "s_monic1.dbs", "Peak = -0.8836 g  Duration = 59.98 sec"},
    {"1994, Northridge, Arleta and Nordhoff Fire Station, 90 Deg",
     "nridge3.dbs", "Peak = 0.3442 g  Duration = 59.98 sec"},
    {"1989, Loma Prieta, Oakland Outer Wharf, 270 Deg", "oakwh1.dbs",
     "Peak = 0.2759 g  Duration = 39.98 sec"},
    {"1989, Loma Prieta, Oakland Outer Wharf, 0 Deg", "oakwh2.dbs",
     "Peak = -0.2199 g  Duration = 39.98 sec"},
    {"1971, San Fernando Pocoima Dam, 196 Deg", "pacoima1.dbs",
     "Peak = 0.1076 g  Duration = 41.70 sec"},
    {"1971, San Fernando Pocoima Dam, 286 Deg", "pacoima2.dbs",
     "Peak = -0.1171 g  Duration = 41.70 sec"},
    {"1966, Parkfield Cholame,Shandon, 40 Deg", "park040.dbs",
     "Peak = -0.237 g  Duration = 26.18"},
    {"1966, Parkfield Cholame,Shandon, 130 Deg", "park130.dbs",
     "Peak = -0.275 g  Duration = 26.14"},
    {"1971, San Fernando 8244 Orion Blvd., 90 Deg", "sanfern1.dbs",
     "Peak = -0.255 g  Duration = 59.48 sec"},
    {"1971, San Fernando 8244 Orion Blvd., 180 Deg", "sanfern2.dbs",
     "Peak = -0.134 g  Duration = 59.58 sec"},
    {"Method of Seismic Intensity- level -Type I", "org_wv1.dbs",
     "Peak = 0.1043 g  Duration = 24.96 sec"},
    {"Method of Seismic Intensity- level -Type II", "org_wv2.dbs",
     "Peak = 0.1207 g  Duration = 30.00 sec"},
    {"Method of Seismic Intensity- level -Type III", "org_wv3.dbs",
     "Peak = 0.1431 g  Duration = 49.96 sec"},
    {"T1-I-1(1978, MIYAGI-Coast, LG)", "T1-I-1.dbs",
     "Peak = 0.3251 g  Duration = 30.00 sec"},
    {"T1-I-2(1978, MIYAGI-Coast, TR)", "T1-I-2.dbs",
     "Peak = 0.3262 g  Duration = 30.00 sec"},
    {"T1-I-3(1993, HOKKAIDO-S/W_Coast, LG)", "T1-I-3.dbs",
     "Peak = -0.3291 g  Duration = 40.00 sec"},
    {"T1-II-1(1968, HYUGANADA-Coast, LG)", "T1-II-1.dbs",
     "Peak = -0.3698 g  Duration = 40.00 sec"},
    {"T1-II-2(1968, HYUGANADA-Coast, TR)", "T1-II-2.dbs",
     "Peak = 0.3925 g  Duration = 40.00 sec"},
    {"T1-II-3(1994, HOKKAIDO-EastCoast, TR)", "T1-II-3.dbs",
     "Peak = -0.3721 g  Duration = 65.00 sec"},
    {"T1-III-1(1983, NIHONKAI-Central, TR)", "T1-III-1.dbs",
     "Peak = -0.4419 g  Duration = 60.00 sec"},
    {"T1-III-2(1983, NIHONKAI-Central, LG)", "T1-III-2.dbs",
     "Peak = -0.4324 g  Duration = 60.00 sec"},
    {"T1-III-3(1994, HOKKAIDO-EastCoast, LG)", "T1-III-3.dbs",
     "Peak = 0.4472 g  Duration = 60.00 sec"},
    {"T2-I-1(1995, HYOUGOKEN_South, NS)", "T2-I-1.dbs",
     "Peak = -0.8281 g  Duration = 30.00 sec"},
    {"T2-I-2(1995, HYOUGOKEN_South, EW)", "T2-I-2.dbs",
     "Peak = 0.781 g  Duration = 30.00 sec"},
    {"T2-I-3(1995, HYOUGOKEN_South, NS)", "T2-I-3.dbs",
     "Peak = 0.7955 g  Duration = 30.00 sec"},
    {"T2-II-1(1995, HYOUGOKEN_South, NS)", "T2-II-1.dbs",
     "Peak = 0.7004 g  Duration = 40.00 sec"},
    {"T2-II-2(1995, HYOUGOKEN_South, EW)", "T2-II-2.dbs",
     "Peak = -0.6859 g  Duration = 40.00 sec"},
    {"T2-II-3(1995, HYOUGOKEN_South, N30W)", "T2-II-3.dbs",
     "Peak = 0.7509 g  Duration = 40.00 sec"},
    {"T2-III-1(1995, HYOUGOKEN_South, N12W)", "T2-III-1.dbs",
     "Peak = -0.6027 g  Duration = 50.00 sec"},
    {"T2-III-2(1995, HYOUGOKEN_South, NS)", "T2-III-2.dbs",
     "Peak = -0.5685 g  Duration = 50.00 sec"},
    {"T2-III-3(1995, HYOUGOKEN_South, EW)", "T2-III-3.dbs",
     "Peak = 0.6314 g  Duration = 50.00 sec"},
}};

}  // namespace

std::span<const CatalogEntry> RecordCatalog() { return kCatalog; }

std::string ProgramFolder() {
  // The executable's own path, as the running kernel sees it.
  std::array<char, 4096> buffer{};
  const ssize_t length =
      readlink("/proc/self/exe", buffer.data(), buffer.size() - 1);
  if (length <= 0) return "";
  std::string path(buffer.data(), static_cast<std::size_t>(length));
  const std::size_t slash = path.rfind('/');
  if (slash == std::string::npos) return "";
  return path.substr(0, slash + 1);
}

std::string FindCatalogFile(const std::string& title, MessageSink& messages,
                            const std::string& program_folder) {
  std::string path = program_folder;
  if (!path.empty() && path.back() != '/') path += '/';
  path += "dbase/";
  for (const CatalogEntry& entry : kCatalog) {
    if (title == entry.title) return path + entry.file;
  }
  messages.Show("File Not Found");
  return path;
}

std::string FindCatalogFile(const std::string& title, MessageSink& messages) {
  return FindCatalogFile(title, messages, ProgramFolder());
}

}  // namespace zel
