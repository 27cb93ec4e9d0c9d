#include "processing/ControlFile.h"

#include <algorithm>
#include <map>
#include <string_view>

#include "base/Lines.h"
#include "base/Text.h"
#include "processing/ControlFileText.h"

namespace zg {

namespace {

/// What differs between the dialogs.
struct Variation {
    bool blankBeforeIdOfGroup2;  ///< its TSFID line has two blanks that the other one always has
    bool hasOutputs;
    bool capitalSurface;
    bool gridded;
};

const Variation& variationOf(InputKind type) {
    static const std::map<InputKind, Variation> rows = {
        {InputKind::Surf, {true, true, false, false}},      {InputKind::Up, {false, true, false, false}},
        {InputKind::MonitorW, {false, true, false, false}}, {InputKind::AermSfc, {false, true, false, false}},
        {InputKind::AermPfl, {false, true, true, false}},   {InputKind::Tsf, {false, false, false, false}},
        {InputKind::Ventos, {false, true, false, true}},    {InputKind::M3d, {false, true, false, true}},
        {InputKind::Csv, {false, true, false, false}}};
    return rows.at(type);
}

/// None if the input is already a time series, whatever the dialog gives.
const std::vector<ControlOutput>& outputsOf(const ControlFile& v) {
    static const std::vector<ControlOutput> none;
    return variationOf(v.type).hasOutputs ? v.outputs : none;
}

using Fields = std::map<std::string, std::string, std::less<>>;

Fields fieldsOf(const ControlFile& v) {
    return {{"TITLE", trim(v.title)},
            {"BASE", v.base},
            {"NTSFOUT", std::to_string(outputsOf(v).size())},
            {"MDATA", mdataOf(v.type)},
            {"IBYR", v.IBYR},
            {"IBMO", v.IBMO},
            {"IBDY", v.IBDY},
            {"IBHR", v.IBHR},
            {"IBSEC", v.IBSEC},
            {"IEYR", v.IEYR},
            {"IEMO", v.IEMO},
            {"IEDY", v.IEDY},
            {"IEHR", v.IEHR},
            {"IESEC", v.IESEC},
            {"ABTZ", v.ABTZ},
            {"NSECDT", v.NSECDT},
            {"WSBIN", v.WSBIN},
            {"NSEASN", std::to_string(v.seasonNames.size())},
            {"MSN", v.MSN}};
}

std::string filled(std::string_view line, const Fields& fields) {
    std::string out;
    while (true) {
        const std::size_t open = line.find('{');
        const std::size_t close = line.find('}', open);
        out += line.substr(0, open);
        if (open == std::string_view::npos || close == std::string_view::npos) return out;
        const auto field = fields.find(line.substr(open + 1, close - open - 1));
        if (field != fields.end()) out += field->second;
        line.remove_prefix(close + 1);
    }
}

/// Activates "(KEY) ... * KEY = default *": the same columns, "!" for "*", the value for the default.
std::string activated(std::string_view line, std::string_view key, const std::string& value) {
    const std::size_t star = line.rfind("* " + std::string(key));
    const std::size_t equals = line.find('=', star);
    return std::string(line.substr(0, star)) + "!" + std::string(line.substr(star + 1, equals - star)) + " " +
           value + " !";
}

/// The inert assignments that this run activates, with their values.
std::vector<std::pair<std::string, std::string>> activeKeys(const ControlFile& v) {
    std::vector<std::pair<std::string, std::string>> keys;
    if (v.type == InputKind::Tsf) keys.emplace_back("ROSEPLT", v.roseName);
    if (!variationOf(v.type).gridded) return keys;
    keys.emplace_back("METSIM", v.METSIM);
    const ProjectionRecord& p = v.projection;
    const auto isOne = [&p](std::initializer_list<std::string_view> maps) {
        for (const std::string_view map : maps)
            if (p.PMAP == map) return true;
        return false;
    };
    const auto add = [&keys](const char* key, const std::string& value, bool applies) {
        if (applies) keys.emplace_back(key, value);
    };
    add("FEAST", p.FEAST, isOne({"LCC", "TTM", "LAZA"}));
    add("FNORTH", p.FNORTH, isOne({"LCC", "TTM", "LAZA"}));
    add("IUTMZN", p.IUTMZN, isOne({"UTM"}));
    add("UTMHEM", p.UTMHEM, isOne({"UTM"}));
    add("RLAT0", p.RLAT0, isOne({"LCC", "TTM", "PS", "EM", "LAZA"}));
    add("RLON0", p.RLON0, isOne({"LCC", "TTM", "PS", "EM", "LAZA"}));
    add("XLAT1", p.XLAT1, isOne({"PS", "LCC"}));
    add("XLAT2", p.XLAT2, isOne({"LCC"}));
    add("DATUM", p.DATUM, p.PMAP != "NONE");
    if (v.type != InputKind::M3d) return keys;
    add("MPROF", v.MPROF, true);
    add("MCELL", v.MCELL, true);
    add("NLU3D", "25", true);
    add("XYCELL1", "0.,0.", true);
    add("DXYCELL", "0.,0.", true);
    return keys;
}

class Builder {
 public:
    explicit Builder(const ControlFile& values)
        : v_(values),
          variation_(variationOf(values.type)),
          fields_(fieldsOf(values)),
          active_(activeKeys(values)) {}

    std::string bytes() {
        std::string_view text = controlFileText;
        while (!text.empty()) {
            const std::size_t end = text.find('\n');
            take(text.substr(0, end));
            text.remove_prefix(end + 1);
        }
        return std::move(out_);
    }

 private:
    void write(const std::string& line) { out_ += line + "\r\n"; }

    void take(std::string_view line) {
        if (line == "[per output]" || line == "[per season]") {
            block_.emplace();
        } else if (line == "[of a table]") {
            isPassedOver_ = v_.type != InputKind::Csv;
        } else if (line == "[end of a table]") {
            isPassedOver_ = false;
        } else if (isPassedOver_) {
            return;
        } else if (line == "[end per output]") {
            repeatForOutputs();
        } else if (line == "[end per season]") {
            repeatForSeasons();
        } else if (block_) {
            block_->emplace_back(line);
        } else {
            takeSingle(line);
        }
    }

    void takeSingle(std::string_view line) {
        if (line == "[table keys]") return writeTableKeys();
        if (line.find("{INPUTFILE}") != std::string_view::npos) return repeatForInputs(line);
        if (line.find("! NMETINP = 1 !") != std::string_view::npos)
            return write(replaced(line, "NMETINP = 1", "NMETINP = " + std::to_string(v_.inputFiles.size())));
        if (variation_.gridded && line.find("! PMAP = NONE !") != std::string_view::npos)
            return write(replaced(line, "PMAP = NONE", "PMAP = " + v_.projection.PMAP));
        if (variation_.capitalSurface && line == "     Profile Method near surface")
            return write("     Profile Method near Surface");
        for (const auto& [key, value] : active_)
            if (line.find("* " + key + " ") != std::string_view::npos)
                return write(activated(line, key, value));
        write(filled(line, fields_));
    }

    static std::string replaced(std::string_view line, std::string_view old, const std::string& fresh) {
        const std::size_t at = line.find(old);
        return std::string(line.substr(0, at)) + fresh + std::string(line.substr(at + old.size()));
    }

    void repeatForInputs(std::string_view line) {
        for (const std::string& file : v_.inputFiles) {
            Fields fields = fields_;
            fields["INPUTFILE"] = file;
            write(filled(line, fields));
        }
    }

    void writeTableKeys() {
        for (const ControlKey& entry : v_.tableKeys) {
            const std::string key =
                entry.key + std::string(8 - std::min<std::size_t>(8, entry.key.size()), ' ');
            write("     ! " + key + "= " + entry.value + " !");
        }
    }

    void repeatForOutputs() {
        for (const ControlOutput& output : outputsOf(v_)) {
            Fields fields = fields_;
            fields["ID"] = output.id;
            fields["OUTNAME"] = output.name;
            fields["LOCATION"] = output.location;
            fields["STATION"] = output.place;
            fields["HEIGHT"] = output.height;
            const bool group2 = block_->size() > 3;
            for (const std::string& line : *block_) writeOfOutput(line, output, fields, group2);
        }
        block_.reset();
    }

    static bool isLocated(const ControlOutput& output) { return output.located || !output.location.empty(); }

    void writeOfOutput(std::string_view line, const ControlOutput& output, const Fields& fields,
                       bool group2) {
        constexpr std::string_view otherForm = "   or ";
        if (line.starts_with(otherForm)) {  // the inert form of the line before it
            if (!isLocated(output)) write("     " + std::string(trimmed(line.substr(otherForm.size()))));
        } else if (line.find("{LOCATION}") != std::string_view::npos) {
            if (isLocated(output)) write(filled(line, fields));
        } else if (group2 && !variation_.blankBeforeIdOfGroup2 &&
                   line.find("TSFID  =") != std::string_view::npos) {
            write(filled(replaced(line, "TSFID  =", "TSFID ="), fields));
        } else if (line.find("{STATION}, 0, 0") != std::string_view::npos) {
            write(filled(replaced(line, "{STATION}, 0, 0", "{STATION}"), fields));
        } else {
            write(filled(line, fields));
        }
    }

    void repeatForSeasons() {
        for (std::size_t i = 0; i < v_.seasonNames.size(); ++i) {
            Fields fields = fields_;
            fields["SEASONID"] = std::to_string(i + 1);
            fields["SEASONNAME"] = v_.seasonNames[i];
            for (const std::string& line : *block_) write(filled(line, fields));
        }
        block_.reset();
    }

    const ControlFile& v_;
    const Variation& variation_;
    Fields fields_;
    std::vector<std::pair<std::string, std::string>> active_;
    std::optional<std::vector<std::string>> block_;
    bool isPassedOver_ = false;  ///< lines of another kind of input
    std::string out_;
};

}  // namespace

void setPeriod(ControlFile& values, DateTime begin, DateTime end) {
    const auto take = [](DateTime moment, std::string& year, std::string& month, std::string& day,
                         std::string& hour, std::string& seconds) {
        const CalendarDate date = dateOf(moment);
        const TimeOfDay time = timeOf(moment);
        year = std::to_string(date.year);
        month = std::to_string(date.month);
        day = std::to_string(date.day);
        hour = std::to_string(time.hour);
        seconds = std::to_string(60 * time.minute + time.second);
    };
    take(begin, values.IBYR, values.IBMO, values.IBDY, values.IBHR, values.IBSEC);
    take(end, values.IEYR, values.IEMO, values.IEDY, values.IEHR, values.IESEC);
}

std::string controlFileBytes(const ControlFile& values) { return Builder(values).bytes(); }

void WriteControlFile(const std::string& directory, const ControlFile& values) {
    LineWriter file(directory + values.base + "_tempoline.inp");
    file.write(controlFileBytes(values));
    file.close();
}

}  // namespace zg
