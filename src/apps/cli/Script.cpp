#include "apps/cli/Script.h"

#include "apps/cli/ScriptLine.h"
#include "apps/cli/ScriptMembers.h"
#include "formats/HostFault.h"

#include <exception>

namespace Traces::Cli {

namespace {

std::string_view IconName(MessageIcon icon)
{
    switch (icon) {
    case MessageIcon::None: return "";
    case MessageIcon::Stop: return "stop";
    case MessageIcon::Information: return "information";
    }
    return "";
}

Json MessagesJson(const std::vector<Message>& messages)
{
    Json list = Json::array();
    for (const Message& message : messages)
        list.push_back({{"title", ToJson(message.Title)},
                        {"text", ToJson(message.Text)},
                        {"icon", IconName(message.Icon)}});
    return list;
}

} // namespace

Json Script::Call(std::string_view line)
{
    const ScriptLine parsed = ParseScriptLine(line);
    Json reply = Json::object();
    if (parsed.Member.empty())
        return reply;
    reply["call"] = parsed.Member;
    if (!parsed.Problem.empty()) {
        reply["error"] = "malformed line: " + parsed.Problem;
        return reply;
    }
    platform.Messages.clear();
    platform.SaveDialogs.clear();
    if (parsed.Member != AskedMember) {
        platform.Menus.clear();
        platform.ShownParameters.clear();
        platform.ChangedProperties.clear();
    }
    events.Events.clear();
    try {
        reply.update(CallMember(*this, parsed));
    } catch (const HostFault& fault) {
        reply["fault"] = FaultName(fault.Kind);
    } catch (const std::exception& exception) {
        // What the system refuses, such as memory. The script goes on.
        reply["error"] = exception.what();
    }
    if (!platform.Messages.empty())
        reply["messages"] = MessagesJson(platform.Messages);
    if (!events.Events.empty())
        reply["events"] = events.Events;
    return reply;
}

std::optional<std::string> Script::Run(std::string_view line)
{
    const Json reply = Call(line);
    if (reply.empty())
        return std::nullopt;
    return ToLine(reply);
}

} // namespace Traces::Cli
