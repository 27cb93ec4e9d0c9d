#include "export/HtmlReport.h"

#include <algorithm>

#include "base/Encoding.h"
#include "base/Text.h"
#include "graph/render/ShareTable.h"
#include "graph/render/SvgCanvas.h"

namespace zg {

namespace {

constexpr const char* styleText = R"style(
:root{color-scheme:light dark;--ink:#1a1a1a;--paper:#fff;--soft:#f2f4f7;--line:#767b84;--link:#0b57a4}
@media (prefers-color-scheme:dark){:root{--ink:#eceff4;--paper:#15181d;--soft:#22272f;--line:#9aa2ae;--link:#8ab8f0}}
*{box-sizing:border-box}
body{margin:0 auto;padding:1rem;max-width:84rem;font:1rem/1.5 system-ui,Arial,Helvetica,sans-serif;color:var(--ink);background:var(--paper)}
h1{font-size:1.6rem;margin:.2em 0}h2{font-size:1.3rem;margin:1.6em 0 0}h3{font-size:1.1rem;margin:0}
.filter{display:flex;flex-wrap:wrap;gap:1rem;align-items:end;padding:.8rem;background:var(--soft);border-radius:.4rem}
.filter[hidden]{display:none}
.filter label{display:grid;grid-template-columns:minmax(0,auto);gap:.2rem;max-width:100%}
select{font:inherit;max-width:100%;padding:.3rem;color:var(--ink);background:var(--paper);border:1px solid var(--line);border-radius:.2rem}
.roses{display:grid;grid-template-columns:repeat(auto-fill,minmax(min(100%,26rem),1fr));gap:1.2rem;margin-top:.8rem}
.rose{border:1px solid var(--line);border-radius:.4rem;padding:.8rem;min-width:0}
.rose[hidden],.file[hidden]{display:none}
figure{margin:.5rem 0}
figure svg{display:block;width:100%;height:auto;background:#fff}
summary{cursor:pointer;color:var(--link)}
summary:focus-visible,select:focus-visible,.scroll:focus-visible{outline:3px solid var(--link);outline-offset:2px}
.scroll{overflow-x:auto}
table{border-collapse:collapse;font-size:.8rem;font-variant-numeric:tabular-nums}
caption{text-align:left;padding:.4rem 0}
th,td{padding:.1rem .25rem;text-align:right;border-bottom:1px solid var(--line)}
tbody th{text-align:left}
@page{margin:12mm}
@media print{:root{--ink:#000;--paper:#fff;--soft:#fff;--line:#666;--link:#000}
body{padding:0;max-width:none;font-size:10pt;line-height:1.25}.filter,summary,figcaption,[role=status]{display:none}
h1{font-size:15pt;margin:0}h2{font-size:13pt;margin:2mm 0 0}h3{font-size:11pt}p{margin:1mm 0}
h1,h2,h2+p,h3{break-after:avoid}
.roses{display:block;margin:2mm 0 0}.rose{break-inside:avoid;border:0;padding:0;margin-bottom:6mm}
figure{margin:1mm 0}figure svg{width:128mm}details::details-content{content-visibility:visible;display:block}
.scroll{overflow:visible}table{font-size:8pt}caption{padding:0}th,td{padding:.15mm 2mm}
details p{display:inline-block;margin:1mm 6mm 0 0}}
)style";

// clang-format off
constexpr const char* scriptText = R"script(
(function(){
var form=document.querySelector(".filter"),told=document.querySelector("[role=status]");
function show(){
var station=form.elements.station.value,period=form.elements.period.value,count=0;
document.querySelectorAll(".rose").forEach(function(rose){
var fits=(!station||rose.dataset.station===station)&&(!period||rose.dataset.period===period);
rose.hidden=!fits;if(fits)count++;});
document.querySelectorAll(".file").forEach(function(file){file.hidden=!file.querySelector(".rose:not([hidden])");});
told.textContent=count===1?"1 rose is shown.":count+" roses are shown.";}
form.hidden=false;form.addEventListener("change",show);
form.addEventListener("submit",function(event){event.preventDefault();});
var folds=[];
addEventListener("beforeprint",function(){folds=[].slice.call(document.querySelectorAll("details:not([open])"));
folds.forEach(function(fold){fold.open=true;});});
addEventListener("afterprint",function(){folds.forEach(function(fold){fold.open=false;});});
})();
)script";
// clang-format on

std::string htmlText(const std::string& bytes) { return xmlText(toUtf8(bytes)); }

std::string headingOf(const RoseOfFile& rose) {
    const std::string title = trim(rose.tables->GraphTitle);
    return title.empty() ? stationOf(rose) : title;
}

std::string tableHtml(const ShareTable& table, const std::string& name) {
    std::string html =
        "<details><summary>Table of shares and hours: " + name +
        "</summary>\n<div class=\"scroll\" tabindex=\"0\" role=\"region\" aria-label=\"Table: " + name +
        "\"><table><caption>Share of the valid hours in percent</caption>\n<thead><tr>";
    for (const std::string& cell : table.heading) html += "<th scope=\"col\">" + xmlText(cell) + "</th>";
    html += "</tr></thead>\n<tbody>\n";
    for (const auto& row : table.rows) {
        html += "<tr>";
        for (std::size_t i = 0; i < row.size(); ++i)
            html += i == 0 ? "<th scope=\"row\">" + xmlText(row[i]) + "</th>"
                           : "<td>" + xmlText(row[i]) + "</td>";
        for (std::size_t i = row.size(); i < table.heading.size(); ++i) html += "<td></td>";
        html += "</tr>\n";
    }
    html += "</tbody></table></div>\n";
    for (const std::string& line : table.lines) html += "<p>" + xmlText(line) + "</p>\n";
    return html + "</details>\n";
}

std::string roseHtml(const RoseOfFile& rose, const PictureLook& look, int side, std::size_t number) {
    const std::string period = htmlText(periodOf(rose));
    const ModPolarGraph tables = tablesFor(rose, look);
    const std::string name = "rose" + std::to_string(number);
    return "<article class=\"rose\" data-station=\"" + htmlText(stationOf(rose)) + "\" data-period=\"" +
           period + "\">\n<h3>" + period + "</h3>\n<figure>" + svgOf(roseDrawing(rose, look, side), name) +
           "<figcaption>" + htmlText(tables.GraphCaption) + "</figcaption></figure>\n" +
           tableHtml(shareTable(tables, speedLimits(tables, look.rose.unit)),
                     htmlText(stationOf(rose)) + ", " + period) +
           "</article>\n";
}

/// The distinct texts, in order of appearance.
template <typename Text>
std::vector<std::string> distinct(const std::vector<RoseOfFile>& roses, Text text) {
    std::vector<std::string> found;
    for (const RoseOfFile& rose : roses) {
        std::string one = text(rose);
        if (std::find(found.begin(), found.end(), one) == found.end()) found.push_back(std::move(one));
    }
    return found;
}

std::string choice(const char* name, const char* label, const std::vector<std::string>& values) {
    std::string html =
        std::string("<label>") + label + " <select name=\"" + name + "\"><option value=\"\">All</option>";
    for (const std::string& value : values)
        html += "<option value=\"" + htmlText(value) + "\">" + htmlText(value) + "</option>";
    return html + "</select></label>\n";
}

std::string countText(std::size_t count, const char* what) {
    return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

}  // namespace

std::string htmlReport(const std::vector<RoseOfFile>& roses, const PictureLook& asked, int side) {
    PictureLook look = asked;
    look.besideTable = false;
    const std::vector<std::string> stations = distinct(roses, stationOf);
    const std::vector<std::string> files =
        distinct(roses, [](const RoseOfFile& rose) { return rose.source; });
    const std::string title = stations.size() == 1 ? "Wind roses: " + htmlText(stations[0]) : "Wind roses";
    std::string html = "<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\">\n<title>" + title +
                       "</title>\n<meta name=\"viewport\" content=\"width=device-width,initial-scale=1\">\n"
                       "<style>" +
                       styleText + "</style></head>\n<body>\n<header><h1>" + title + "</h1>\n<p>" +
                       countText(roses.size(), "rose") + " of " + countText(files.size(), "file") +
                       ". The wind blows from the direction of a bar.</p>\n</header>\n<main>\n"
                       "<form class=\"filter\" hidden>\n" +
                       choice("station", "Station", stations) +
                       choice("period", "Season or hours", distinct(roses, periodOf)) +
                       "</form>\n<p role=\"status\"></p>\n";
    const std::string* open = nullptr;
    for (std::size_t i = 0; i < roses.size(); ++i) {
        if (open == nullptr || *open != roses[i].file) {
            if (open != nullptr) html += "</div></section>\n";
            html += "<section class=\"file\"><h2>" + htmlText(headingOf(roses[i])) + "</h2>\n<p>" +
                    htmlText(roses[i].tables->GraphSubTitle) + "</p>\n<div class=\"roses\">\n";
            open = &roses[i].file;
        }
        html += roseHtml(roses[i], look, side, i + 1);
    }
    if (open != nullptr) html += "</div></section>\n";
    return html + "</main>\n<script>" + scriptText + "</script>\n</body></html>\n";
}

std::vector<Drawing> reportPages(const std::vector<RoseOfFile>& roses, const PictureLook& asked, int side) {
    PictureLook look = asked;
    look.besideTable = true;
    std::vector<Drawing> pages;
    pages.reserve(roses.size());
    for (const RoseOfFile& rose : roses) pages.push_back(roseDrawing(rose, look, side));
    return pages;
}

}  // namespace zg
