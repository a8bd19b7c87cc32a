#include "core/plot/text_fit.h"

#include <algorithm>

namespace zel {
namespace {

// The chart size at which the text has its normal size.
constexpr double kNormalWidth = 560.0;
constexpr double kNormalHeight = 400.0;
// Step by which a font shrinks when its measured width still exceeds.
constexpr double kShrinkStep = 0.5;

double Widest(const std::vector<std::string>& lines, double points,
              const TextWidth& measure) {
  double widest = 0.0;
  for (const std::string& line : lines)
    widest = std::max(widest, measure(line, points));
  return widest;
}

constexpr const char* kEllipsis = "...";

// Removes the last character of UTF-8 text, all of its bytes.
void DropLastCharacter(std::string& s) {
  while (!s.empty() && (static_cast<unsigned char>(s.back()) & 0xC0) == 0x80)
    s.pop_back();
  if (!s.empty()) s.pop_back();
}

std::string TrimRight(std::string s) {
  while (!s.empty() && s.back() == ' ') s.pop_back();
  return s;
}

// Pieces of `line` that may start a new line: each ends after a comma or a
// run of blanks.
std::vector<std::string> BreakPieces(const std::string& line) {
  std::vector<std::string> pieces;
  std::string piece;
  for (std::size_t i = 0; i < line.size(); ++i) {
    piece += line[i];
    const bool next_is_blank = i + 1 < line.size() && line[i + 1] == ' ';
    if ((line[i] == ',' && !next_is_blank) ||
        (line[i] == ' ' && !next_is_blank)) {
      pieces.push_back(piece);
      piece.clear();
    }
  }
  if (!piece.empty()) pieces.push_back(piece);
  return pieces;
}

void Wrap(const std::string& line, double width, double points,
          const TextWidth& measure, std::vector<std::string>& out) {
  std::string current;
  for (const std::string& piece : BreakPieces(line)) {
    const std::string joined = current + piece;
    if (!current.empty() && measure(TrimRight(joined), points) > width) {
      out.push_back(TrimRight(current));
      current = piece;
    } else {
      current = joined;
    }
  }
  if (!current.empty() || out.empty()) out.push_back(TrimRight(current));
}

}  // namespace

double ChartFontSize(int width, int height, double normal, double minimum) {
  const double scale =
      std::min({1.0, width / kNormalWidth, height / kNormalHeight});
  return std::max(std::min(minimum, normal), normal * std::max(scale, 0.0));
}

FittedText FitLines(const std::vector<std::string>& lines, double width,
                    double points, double minimum, const TextWidth& measure,
                    int max_lines) {
  FittedText fit{points, {}};
  if (!(width > 0.0)) return {points, lines};  // no room known yet
  const double widest = Widest(lines, points, measure);
  if (widest > width) {
    fit.points = std::max(minimum, points * width / widest);
    while (fit.points - kShrinkStep >= minimum &&
           Widest(lines, fit.points, measure) > width) {
      fit.points -= kShrinkStep;
    }
    fit.points = std::min(fit.points, points);
  }
  for (const std::string& line : lines) {
    if (measure(line, fit.points) <= width) {
      fit.lines.push_back(line);
    } else {
      Wrap(line, width, fit.points, measure, fit.lines);
    }
  }
  if (max_lines > 0 && static_cast<int>(fit.lines.size()) > max_lines) {
    fit.lines.resize(max_lines);
    std::string& last = fit.lines.back();
    while (!last.empty() && measure(last + kEllipsis, fit.points) > width) {
      DropLastCharacter(last);
    }
    last = TrimRight(last) + kEllipsis;
  }
  return fit;
}

}  // namespace zel
