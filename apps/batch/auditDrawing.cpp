// The verb audit: what contradicts a style or itself, and laying it right.

#include "DatabaseCore.h"
#include "ObjectTable.h"
#include "batchFiles.h"
#include "drawingAudit.h"
#include "fileNameJson.h"
#include "handleText.h"
#include "printableText.h"
#include "verbs.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdio>

namespace orvex {

namespace {

using Json = nlohmann::ordered_json;

// Null where there is no such number.
template <class Number>
Json numberJson(const std::optional<Number>& number) {
    return number ? Json(*number) : Json();
}

Json findingJson(const KdDbStub& mline, const AuditedFinding& audited) {
    const Finding& finding = audited.finding;
    Json json;
    json["handle"] = handleText(mline.handle);
    json["vertex"] = finding.vertex;
    json["element"] = numberJson(finding.element);
    json["code"] = nameOf(finding.code);
    json["was"] = numberJson(finding.was);
    json["should"] = numberJson(finding.should);
    json["result"] = nameOf(audited.result);
    return json;
}

void printJson(const std::vector<AuditedMline>& audited, const DrawingTask& task) {
    Json findings = Json::array();
    for (const AuditedMline& mline : audited) {
        for (const AuditedFinding& each : mline.findings) {
            findings.push_back(findingJson(*mline.mline, each));
        }
    }
    Json all;
    if (task.isOneOfMany) {
        addFileName(all, "drawing", "input_bytes", task.drawing);
    }
    all["findings"] = std::move(findings);
    std::printf("%s\n", all.dump(task.isOneOfMany ? -1 : 1).c_str());
}

void printText(const std::vector<AuditedMline>& audited, std::size_t mlines) {
    for (const AuditedMline& each : audited) {
        for (const std::string& line : linesOf(each)) {
            std::printf("%s\n", printableText(line).c_str());
        }
    }
    std::printf("%s\n", summaryOf(audited, mlines).c_str());
}

// Of all blocks, in drawing order.
std::vector<KdDbStub*> mlinesOf(DatabaseCore& core) {
    std::vector<KdDbStub*> mlines;
    for (KdDbStub& stub : core.objects().stubs()) {
        if (stub.kind == ObjectKind::mline && !stub.erased) {
            mlines.push_back(&stub);
        }
    }
    return mlines;
}

// Every result has its number, also where that is 0.
Counts countsOf(const std::vector<AuditedMline>& audited, std::size_t mlines) {
    Counts counts{{"multilines", mlines}};
    for (const FindingResult result :
         {FindingResult::found, FindingResult::repaired, FindingResult::left}) {
        std::size_t count = 0;
        for (const AuditedMline& each : audited) {
            count += static_cast<std::size_t>(
                std::ranges::count(each.findings, result, &AuditedFinding::result));
        }
        counts.emplace_back(nameOf(result), count);
    }
    return counts;
}

class AuditVerb final : public Verb {
public:
    AuditVerb()
        : Verb({"audit", "List multilines that contradict their style or themselves",
                "Lay right what can be, and save the result here"}) {}

    void addOptions(CLI::App& options) override {
        options.add_flag("--json", m_asJson, "Print JSON, for programs");
    }

    [[nodiscard]] bool printsJson() const override { return m_asJson; }

    std::optional<Failure> carryOut(const DrawingTask& task, Counts& counts) override {
        auto drawing = openDrawing(task.drawing);
        if (!drawing) {
            return drawing.failure();
        }
        return withMemory(FailureCause::unplayableScript, inputName(task.drawing),
                          [&] { return audit(**drawing, task, counts); });
    }

private:
    std::optional<Failure> audit(DrawingFile& drawing, const DrawingTask& task, Counts& counts) {
        const std::vector<KdDbStub*> mlines = mlinesOf(drawing.database().core());
        const std::vector<AuditedMline> audited = auditMlines(mlines, task.output.has_value());
        counts = countsOf(audited, mlines.size());
        if (m_asJson) {
            printJson(audited, task);
        } else {
            printText(audited, mlines.size());
        }
        return task.output ? saveDrawing(drawing, *task.output) : std::nullopt;
    }

    bool m_asJson = false;
};

} // namespace

std::unique_ptr<Verb> makeAuditVerb() {
    return std::make_unique<AuditVerb>();
}

} // namespace orvex
