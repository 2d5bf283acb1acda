#pragma once

#include <map>

#include "shell/texts.h"

namespace rlx::test {

/// The English texts of the feeds, written down a second time so that a test sees what a person sees.
class CFeedTexts : public ITexts {
public:
    std::u16string Text(int id) const override {
        const auto found = m_texts.find(id);
        return found == m_texts.end() ? u"<missing text>" : found->second;
    }

private:
    const std::map<int, std::u16string> m_texts = {
        {32866, u"Cannot update.\n\nPlease check your Internet connection."},
        {32923, u"Error!"},
        {32924, u"Last update\n"},
        {32925, u"Upd."},
        {32948, u"Confirmation"},
        {33014, u"Syncronisation failed"},
        {33026, u"Error with server url"},
        {33027, u"Access to the secured http site is denied!"},
        {33028, u"Server error"},
        {33029, u"Please try again later.\n\nIf the problem persist please contact support."},
        {33031, u"Please contact support."},
        {33032, u"Redirection with no new location"},
        {33033, u"Error with redirected url"},
        {33034, u"Not enough memory!"},
        {33057, u"Invalid request"},
        {33058, u"Requested city not available"},
        {33133, u"There are no Updates available"},
        {33135, u"Cannot connect to Server"},
        {33136, u"For more information:"},
        {33152,
         u"Please try to set (one of) the following active connection(s) as your default Internet connection under "
         u"Start> Settings> Connections> Connections> Advanced> Network select: \n\n"},
        {33153,
         u"\n\nTo configure your Internet Network, please go to:\nStart> Settings> Connections> Connections> "
         u"Advanced> Network select"},
        {33160, u"You have News"},
        {40000, u"Roamlytix"},
        {41200, u"The connection <"},
        {41201, u"> will be used."},
        {41210, u"Don't ask again for this connection"},
        {41222, u"The news page could not be saved."},
        {41202, u"No news..."},
        {41221, u"The rates could not be stored."},
    };
};

}  // namespace rlx::test
