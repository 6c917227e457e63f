#pragma once

#include "core/TZelComPtr.h"
#include "tests/support/CItems.h"
#include "tests/support/CTestDocument.h"
#include "tests/support/CTestElement.h"
#include "tests/support/saveTable.h"
#include "xml/CZelXMLAdd.h"
#include "xml/CZelXMLGet.h"
#include "xml/CZelXMLIO.h"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

namespace ZelTest {

/// An object with the text that it writes and the failure of what it reads.
template <class Pointer>
class CSubject {
public:
    CSubject(CTestDocument& document, const std::string& tag, const CForm& form, Pointer object)
        : mObject(std::move(object)), mTag(tag), mIo(document.ref(), form.getUUID)
    {
    }

    std::string write()
    {
        CTestElement target;
        if constexpr (requires { mObject->addXML(mIo, target.element()); })
            mObject->addXML(mIo, target.element());
        else
            mObject->addTo(mIo,
                           OvZel::CZelXMLAdd(OvZel::CZelXMLAdd(target.element()).AddElement(mTag)));
        return withoutDeclaration(target.text());
    }

    /// The text of the failure, empty if there is none.
    std::string read(const std::string& xml)
    {
        const CTestElement source(xml);
        try {
            if constexpr (requires { mObject->getXML(mIo, source.element()); })
                mObject->getXML(mIo, source.element());
            else
                mObject->getFrom(
                    mIo, OvZel::CZelXMLGet(OvZel::CZelXMLGet(source.element()).GetElement(mTag)));
        } catch (const std::exception& exception) {
            return exception.what()[0] != '\0' ? exception.what() : "(no text)";
        }
        return "";
    }

    static std::string withoutDeclaration(const std::string& text)
    {
        const std::size_t start = text.find("<E");
        return start == std::string::npos ? text : text.substr(start);
    }

private:
    Pointer mObject;
    std::string mTag;
    OvZel::CZelXMLIO mIo;
};

/// Checks that the full file with this text in the place of an item is read, and what is written.
template <class Subject>
void checkChanged(CItems& items, std::size_t place, const COldForm& form, Subject subject)
{
    SCOPED_TRACE(items.path(place) + " as " + form.read);
    items.setAll(CItems::EState::Full);
    items.changeAt(place, form.read);
    auto reader = subject();
    EXPECT_EQ(reader.read(items.text()), "");
    items.changeAt(place, form.written);
    EXPECT_EQ(reader.write(), items.text());
}

/// Checks that each word of an item comes back, that no other is read, and its old forms.
template <class Subject>
void checkWords(CItems& items, std::size_t place, Subject subject)
{
    const CRow& row = items.row(place);
    const auto asItem = [&](const std::string& word) {
        return row.isAttribute ? word : elementText(row.name, word);
    };
    for (const std::string& word : row.words)
        checkChanged(items, place, {asItem(word), asItem(word)}, subject);
    for (const COldForm& form : row.oldForms)
        checkChanged(items, place, form, subject);
    if (row.words.empty())
        return;
    items.setAll(CItems::EState::Full);
    items.changeAt(place, asItem("No.Such.Word"));
    auto reader = subject();
    const std::string failure = reader.read(items.text());
    if (!row.message.empty() && !items.isSilent(place)) {
        EXPECT_NE(failure, "") << items.path(place);
    }
    EXPECT_EQ(reader.write().find("No.Such.Word"), std::string::npos) << items.path(place);
}

/// Checks that a new object writes the new values, that a full file comes back, that a file without
/// an item gives that item's outcome, and that after a failure what was read before holds the
/// file's values and the rest those of a new object. The pages of the format are made of the same
/// tables.
///
/// `make` gets the test's document and gives a smart pointer to a new object.
template <class Make>
requires std::is_invocable_v<Make, CTestDocument&>
void checkElement(const std::string& tag, const std::vector<CRow>& rows, Make make,
                  const CForm& form = {})
{
    using EState = CItems::EState;
    saveTable(tag, rows, form);
    CTestDocument document;
    const auto subject = [&] {
        return CSubject<std::invoke_result_t<Make, CTestDocument&>>(document, tag, form,
                                                                    make(document));
    };
    CItems items(tag, rows, form);

    items.setAll(EState::Fresh);
    EXPECT_EQ(subject().write(), items.text()) << "a new object";
    items.setAll(EState::Full);
    const std::string full = items.text();
    auto loaded = subject();
    EXPECT_EQ(loaded.read(full), "") << "the full file";
    EXPECT_EQ(loaded.write(), full) << "the full file comes back";

    for (std::size_t i = 0; i < items.size(); ++i) {
        SCOPED_TRACE("without " + items.path(i));
        items.setAll(EState::Full);
        items.setAt(i, EState::Missing);
        auto reader = subject();
        const std::string failure = reader.read(items.text());
        EXPECT_EQ(failure, items.isSilent(i) ? "" : items.row(i).message);

        items.setAll(EState::Full);
        if (items.row(i).message.empty()) {
            items.setAt(i, items.isPart(i) ? EState::Fresh : EState::Absent);
            for (const std::string& gone : items.row(i).alsoGone)
                items.set(gone, EState::Fresh);
        } else {
            items.setFrom(i, EState::Fresh);
        }
        EXPECT_EQ(reader.write(), items.text());
        checkWords(items, i, subject);
    }
    EXPECT_EQ(document.takeMessages(), std::vector<std::string>());
}

/// The same for a class that is made with its owner alone.
template <class Class>
void checkElement(const std::string& tag, const std::vector<CRow>& rows, const CForm& form = {})
{
    checkElement(
        tag, rows,
        [](CTestDocument& document) {
            if constexpr (requires(Class & object) { object.AddRef(); })
                return OvZel::TZelComPtr<Class>(new Class(document.ref()));
            else
                return std::make_unique<Class>(document.ref());
        },
        form);
}

} // namespace ZelTest
