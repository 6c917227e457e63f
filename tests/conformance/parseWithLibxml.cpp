#include "tests/conformance/events.h"

#include <libxml/parser.h>
#include <libxml/parserInternals.h>

#include <memory>

namespace ZelTest {

namespace {

struct CState {
    CEventList events;
    bool hasEntities = false;
    std::string message;
};

CState& stateOf(void* context)
{
    return *static_cast<CState*>(static_cast<xmlParserCtxt*>(context)->_private);
}

std::string from(const xmlChar* text)
{
    return text == nullptr ? "" : reinterpret_cast<const char*>(text);
}

std::string from(const xmlChar* begin, std::ptrdiff_t size)
{
    return {reinterpret_cast<const char*>(begin), static_cast<std::size_t>(size)};
}

std::string qualified(const xmlChar* prefix, const xmlChar* name)
{
    return prefix == nullptr ? from(name) : from(prefix) + ':' + from(name);
}

void onStart(void* context, const xmlChar* name, const xmlChar* prefix, const xmlChar*,
             int nbNamespaces, const xmlChar** namespaces, int nbAttributes, int,
             const xmlChar** attributes)
{
    CEventList& events = stateOf(context).events;
    events.start(qualified(prefix, name));
    for (int i = 0; i < nbNamespaces; ++i) {
        const xmlChar* declared = namespaces[2 * i];
        events.namespaceAttribute(declared == nullptr ? "xmlns" : "xmlns:" + from(declared),
                                  from(namespaces[2 * i + 1]));
    }
    for (int i = 0; i < nbAttributes; ++i) {
        const xmlChar** each = attributes + 5 * i; // name, prefix, namespace, begin and end
        events.attribute(qualified(each[1], each[0]), from(each[3], each[4] - each[3]));
    }
}

void onEnd(void* context, const xmlChar*, const xmlChar*, const xmlChar*)
{
    stateOf(context).events.end();
}

void onText(void* context, const xmlChar* text, int size)
{
    stateOf(context).events.text(from(text, size));
}

void onSection(void* context, const xmlChar* text, int size)
{
    stateOf(context).events.section(from(text, size));
}

void onComment(void* context, const xmlChar* text)
{
    if (static_cast<xmlParserCtxt*>(context)->inSubset == 0)
        stateOf(context).events.comment(from(text));
}

void onInstruction(void* context, const xmlChar* target, const xmlChar* content)
{
    if (static_cast<xmlParserCtxt*>(context)->inSubset == 0)
        stateOf(context).events.instruction(from(target), from(content));
}

xmlEntityPtr onEntity(void* context, const xmlChar* name)
{
    stateOf(context).hasEntities = true;
    return xmlSAX2GetEntity(context, name);
}

void onReference(void* context, const xmlChar*)
{
    stateOf(context).hasEntities = true;
}

xmlParserInputPtr openNothing(const char*, const char*, xmlParserCtxtPtr context)
{
    return xmlNewStringInputStream(context, reinterpret_cast<const xmlChar*>(""));
}

/// The first error that makes a document no document.
void onError(void* context, xmlErrorPtr error)
{
    CState& state = stateOf(context);
    if (error->level == XML_ERR_FATAL && state.message.empty())
        state.message = error->message == nullptr ? "unknown error" : error->message;
}

/// The handlers of the tree, which keep the declarations, with those of ours for what we compare.
void setHandlers(xmlSAXHandler& sax)
{
    sax.startElementNs = onStart;
    sax.endElementNs = onEnd;
    sax.characters = onText;
    sax.ignorableWhitespace = onText;
    sax.cdataBlock = onSection;
    sax.comment = onComment;
    sax.processingInstruction = onInstruction;
    sax.getEntity = onEntity;
    sax.reference = onReference;
    sax.serror = onError;
}

} // namespace

CParsed parseWithLibxml(const std::string& text)
{
    xmlSetExternalEntityLoader(openNothing);
    const std::unique_ptr<xmlParserCtxt, void (*)(xmlParserCtxt*)> context(
        xmlCreateMemoryParserCtxt(text.data(), static_cast<int>(text.size())),
        [](xmlParserCtxt* old) {
            if (old->myDoc != nullptr)
                xmlFreeDoc(old->myDoc);
            xmlFreeParserCtxt(old);
        });
    CParsed parsed;
    if (context == nullptr) {
        parsed.message = "no content";
        return parsed;
    }
    CState state;
    context->_private = &state;
    context->replaceEntities = 1;
    setHandlers(*context->sax);
    xmlParseDocument(context.get());
    parsed.isGood = context->wellFormed != 0;
    parsed.message = state.message;
    parsed.hasEntities = state.hasEntities;
    parsed.events = state.events.take();
    return parsed;
}

} // namespace ZelTest
