#include "KdDbMlineStyle.h"

#include "MlineStyleContent.h"

namespace {

void setFlag(orvex::MlineStyleContent& content, int flag, bool on) {
    content.flags = on ? content.flags | flag : content.flags & ~flag;
}

} // namespace

KdDbMlineStyle::KdDbMlineStyle() : m_content(std::make_shared<orvex::MlineStyleContent>()) {}

KdDbMlineStyle::KdDbMlineStyle(const KdDbMlineStyle& other) : m_content(other.m_content) {}

KdDbMlineStyle::~KdDbMlineStyle() = default;

KdRxClass* KdDbMlineStyle::desc() {
    static KdRxClass description(L"KdDbMlineStyle", KdDbObject::desc());
    return &description;
}

KdRxClass* KdDbMlineStyle::isA() const {
    return desc();
}

orvex::MlineStyleContent& KdDbMlineStyle::change() {
    aboutToChange();
    if (m_content.use_count() > 1) {
        m_content = std::make_shared<orvex::MlineStyleContent>(*m_content);
    }
    return *m_content;
}

void KdDbMlineStyle::initMlineStyle() {
    orvex::MlineStyleContent fresh;
    fresh.name = L"STANDARD";
    fresh.elements.resize(2);
    fresh.elements[0].offset = 0.5;
    fresh.elements[1].offset = -0.5;
    change() = std::move(fresh);
}

Status KdDbMlineStyle::set(const KdDbMlineStyle& style, bool /*checkIfReferenced*/) {
    const auto source = style.m_content;
    orvex::MlineStyleContent copy = *source;
    copy.name = m_content->name;
    change() = std::move(copy);
    return Status::done;
}

const wchar_t* KdDbMlineStyle::name() const {
    return m_content->name.c_str();
}

Status KdDbMlineStyle::setName(const wchar_t* name) {
    std::wstring text(name != nullptr ? name : L""); // may be our own text
    change().name = std::move(text);
    return Status::done;
}

const wchar_t* KdDbMlineStyle::description() const {
    return m_content->description.c_str();
}

Status KdDbMlineStyle::setDescription(const wchar_t* description) {
    std::wstring text(description != nullptr ? description : L"");
    change().description = std::move(text);
    return Status::done;
}

const KdCmColor& KdDbMlineStyle::fillColor() const {
    return m_content->fillColor;
}

Status KdDbMlineStyle::setFillColor(const KdCmColor& color) {
    change().fillColor = color;
    return Status::done;
}

double KdDbMlineStyle::startAngle() const {
    return m_content->startAngle;
}

Status KdDbMlineStyle::setStartAngle(double radians) {
    change().startAngle = radians;
    return Status::done;
}

double KdDbMlineStyle::endAngle() const {
    return m_content->endAngle;
}

Status KdDbMlineStyle::setEndAngle(double radians) {
    change().endAngle = radians;
    return Status::done;
}

bool KdDbMlineStyle::filled() const {
    return (m_content->flags & orvex::kStyleFilled) != 0;
}
void KdDbMlineStyle::setFilled(bool on) {
    setFlag(change(), orvex::kStyleFilled, on);
}

bool KdDbMlineStyle::showMiters() const {
    return (m_content->flags & orvex::kStyleMiters) != 0;
}
void KdDbMlineStyle::setShowMiters(bool on) {
    setFlag(change(), orvex::kStyleMiters, on);
}

bool KdDbMlineStyle::startSquareCap() const {
    return (m_content->flags & orvex::kStyleStartLine) != 0;
}
void KdDbMlineStyle::setStartSquareCap(bool on) {
    setFlag(change(), orvex::kStyleStartLine, on);
}

bool KdDbMlineStyle::startInnerArcs() const {
    return (m_content->flags & orvex::kStyleStartArcs) != 0;
}
void KdDbMlineStyle::setStartInnerArcs(bool on) {
    setFlag(change(), orvex::kStyleStartArcs, on);
}

bool KdDbMlineStyle::startRoundCap() const {
    return (m_content->flags & orvex::kStyleStartRound) != 0;
}
void KdDbMlineStyle::setStartRoundCap(bool on) {
    setFlag(change(), orvex::kStyleStartRound, on);
}

bool KdDbMlineStyle::endSquareCap() const {
    return (m_content->flags & orvex::kStyleEndLine) != 0;
}
void KdDbMlineStyle::setEndSquareCap(bool on) {
    setFlag(change(), orvex::kStyleEndLine, on);
}

bool KdDbMlineStyle::endInnerArcs() const {
    return (m_content->flags & orvex::kStyleEndArcs) != 0;
}
void KdDbMlineStyle::setEndInnerArcs(bool on) {
    setFlag(change(), orvex::kStyleEndArcs, on);
}

bool KdDbMlineStyle::endRoundCap() const {
    return (m_content->flags & orvex::kStyleEndRound) != 0;
}
void KdDbMlineStyle::setEndRoundCap(bool on) {
    setFlag(change(), orvex::kStyleEndRound, on);
}

int KdDbMlineStyle::numElements() const {
    return static_cast<int>(m_content->elements.size());
}

Status KdDbMlineStyle::getElementAt(int index, double& offset, KdCmColor& color,
                                    KdDbObjectId& linetype) const {
    if (index < 0 || index >= numElements()) {
        return Status::invalidInput;
    }
    const orvex::StyleElement& element = m_content->elements[static_cast<std::size_t>(index)];
    offset = element.offset;
    color = element.color;
    linetype = element.linetype;
    return Status::done;
}

Status KdDbMlineStyle::setElement(int& index, double offset, const KdCmColor& color,
                                  KdDbObjectId linetype) {
    if (index < 0 || index >= numElements()) {
        return Status::invalidInput;
    }
    orvex::StyleElement& element = change().elements[static_cast<std::size_t>(index)];
    element.offset = offset;
    element.color = color;
    // Written back as it was read, an unknown line type keeps its name.
    if (!(element.linetype.isNull() && linetype.isNull())) {
        element.linetype = linetype;
        element.linetypeName.clear();
    }
    return Status::done;
}

Status KdDbMlineStyle::addElement(int& index, double offset, const KdCmColor& color,
                                  KdDbObjectId linetype, bool /*check*/) {
    if (index < 0 || index > numElements()) {
        return Status::invalidInput;
    }
    orvex::StyleElement element{offset, color, linetype, {}};
    auto& elements = change().elements;
    elements.insert(elements.begin() + index, std::move(element));
    return Status::done;
}

Status KdDbMlineStyle::removeElementAt(int index) {
    if (index < 0 || index >= numElements()) {
        return Status::invalidInput;
    }
    auto& elements = change().elements;
    elements.erase(elements.begin() + index);
    return Status::done;
}

std::shared_ptr<const orvex::ObjectContent> KdDbMlineStyle::content() const {
    return m_content;
}

Status KdDbMlineStyle::setContent(const std::shared_ptr<const orvex::ObjectContent>& content) {
    const auto typed = std::dynamic_pointer_cast<const orvex::MlineStyleContent>(content);
    if (typed == nullptr) {
        return Status::wrongClass;
    }
    aboutToChange();
    // Contents are made as plain values and never written while somebody else holds them too.
    m_content = std::const_pointer_cast<orvex::MlineStyleContent>(typed);
    return Status::done;
}
