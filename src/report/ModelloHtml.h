// The fixed texts of an HTML report: how it looks, and how its table is sorted.
#pragma once

#include <string_view>

namespace orvane {

inline constexpr std::string_view kStileHtml = R"(
body { font: 14px/1.45 system-ui, sans-serif; margin: 2rem auto; max-width: 72rem; padding: 0 1rem;
  color: #1d2126; background: #fff; }
h1 { font-size: 1.5rem; margin: 0 0 .25rem; }
h2 { font-size: 1.1rem; margin: 1.5rem 0 .5rem; }
p { margin: 0; }
pre { font: 13px/1.4 monospace; }
figure { margin: 1rem 0; }
img { box-sizing: border-box; max-width: 100%; height: auto; border: 1px solid #c8ccd2; }
table { border-collapse: collapse; font-variant-numeric: tabular-nums; }
th, td { padding: .25rem .75rem; border-bottom: 1px solid #dde0e4; text-align: right; }
th { vertical-align: bottom; background: #f2f4f6; }
td.text, th.text { text-align: left; }
th [role=button] { cursor: pointer; }
th[aria-sort=ascending] [role=button]::after { content: " \25B2"; }
th[aria-sort=descending] [role=button]::after { content: " \25BC"; }
td.over { color: #a11212; font-weight: 600; }
.verdict { display: inline-block; padding: .1rem .6rem; border: 2px solid; border-radius: .3rem;
  font-weight: 700; }
.pass { color: #14692e; } .fail { color: #a11212; } .inconclusive { color: #8a5a00; }
@media print {
  body { margin: 0; max-width: none; font-size: 10pt; }
  .summary, figure { break-inside: avoid; }
  .summary { break-after: page; }
  th, td { padding: .15rem .4rem; }
  thead { display: table-header-group; }
  tr { break-inside: avoid; }
  th [role=button]::after { content: none !important; }
}
)";

/// Numbers by value, up and down in turn; what has no value stays last either way.
inline constexpr std::string_view kOrdinaHtml = R"(
document.querySelectorAll("#rows th").forEach(function (head, column) {
  head.addEventListener("keydown", function (event) {
    if (event.key === "Enter" || event.key === " ") { event.preventDefault(); head.click(); }
  });
  head.addEventListener("click", function () {
    var down = head.getAttribute("aria-sort") === "ascending";
    var body = document.querySelector("#rows tbody");
    var value = function (row) { return parseFloat(row.cells[column].textContent); };
    Array.from(body.rows).sort(function (a, b) {
      var x = value(a), y = value(b);
      if (isNaN(x) || isNaN(y)) { return isNaN(x) - isNaN(y); }
      return down ? y - x : x - y;
    }).forEach(function (row) { body.appendChild(row); });
    document.querySelectorAll("#rows th").forEach(function (other) {
      other.removeAttribute("aria-sort");
    });
    head.setAttribute("aria-sort", down ? "descending" : "ascending");
  });
});
)";

} // namespace orvane
