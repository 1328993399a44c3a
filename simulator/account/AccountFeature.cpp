#include "simulator/account/AccountFeature.h"

#include "simulator/account/AccountRoutes.h"
#include "simulator/script/EventLog.h"

#include <QFile>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMetaEnum>
#include <QUrlQuery>

using namespace simulator;
using namespace Qt::StringLiterals;

namespace
{

using Endpoint = AccountFault::Endpoint;

// The enumerators as the words of commands and events, in their order: ProfileRead as
// "profile-read".
template <typename Enum>
QStringList wordsOf()
{
    const auto enumerators = QMetaEnum::fromType<Enum>();
    QStringList words;
    for (int i = 0; i < enumerators.keyCount(); ++i) {
        QString word;
        for (const QChar letter : QString::fromLatin1(enumerators.key(i))) {
            if (letter.isUpper() && !word.isEmpty())
                word += u'-';
            word += letter.toLower();
        }
        words.append(word);
    }
    return words;
}

const QStringList& endpointNames()
{
    static const QStringList s_names = wordsOf<Endpoint>();
    return s_names;
}

const QStringList& faultNames()
{
    static const QStringList s_names = wordsOf<AccountFault::Kind>();
    return s_names;
}

// The faults that a command can switch on. The last one, Canned, also needs a body.
QStringList commandFaults()
{
    return faultNames().first(faultNames().size() - 1);
}

QJsonObject shown(const Account& account)
{
    return {{u"userId"_s, account.userId},
            {u"email"_s, account.email},
            {u"firstName"_s, account.firstName},
            {u"lastName"_s, account.lastName},
            {u"company"_s, account.company},
            {u"title"_s, account.title},
            {u"pictureSize"_s, account.picture.size()}};
}

// The decoded fields of a request without passwords, token and picture.
QJsonObject shown(const AccountRequest& request)
{
    const QUrlQuery query(QString::fromUtf8(request.query()));
    const QJsonObject body = QJsonDocument::fromJson(request.body).object();
    QJsonObject fields;
    for (const auto name : {"firstName"_L1, "lastName"_L1, "company"_L1, "title"_L1}) {
        if (body.contains(name))
            fields.insert(name, body.value(name));
    }
    for (const QString& email : {query.queryItemValue(u"username"_s),
                                 query.queryItemValue(u"email"_s), body[u"email"_s].toString()}) {
        if (!email.isEmpty())
            fields.insert(u"email"_s, decodeAccountCredential(email));
    }
    if (body.contains("picture"_L1))
        fields.insert(u"pictureSize"_s, body[u"picture"_s].toString().size());
    if (!request.header("x-token").isEmpty())
        fields.insert(u"hasToken"_s, true);
    return fields;
}

// Takes the remaining words, each key=value, into the account.
void takeFields(CommandArguments& arguments, Account& account, QString& pictureFile)
{
    const QHash<QString, QString*> fields{{u"firstName"_s, &account.firstName},
                                          {u"lastName"_s, &account.lastName},
                                          {u"company"_s, &account.company},
                                          {u"title"_s, &account.title},
                                          {u"picture"_s, &pictureFile}};
    while (!arguments.atEnd()) {
        const QString word = arguments.word({});
        const qsizetype equals = word.indexOf(u'=');
        QString* const field = fields.value(word.left(qMax<qsizetype>(equals, 0)));
        if (!field)
            return arguments.fail(u"\"%1\" sets no field of an account"_s.arg(word));
        *field = unquoted(word.sliced(equals + 1));
    }
}

} // namespace

AccountFeature::AccountFeature(EventLog& log, QObject* parent)
    : Feature(parent)
    , m_log(log)
{
    connect(&m_service, &AccountService::requestReceived, this, &AccountFeature::noteRequest);
}

QString AccountFeature::name() const
{
    return u"account"_s;
}

void AccountFeature::addCommands(CommandInterpreter& interpreter)
{
    addServiceCommands(interpreter);
    addAccountCommands(interpreter);
    addFaultCommands(interpreter);
    addExpectations(interpreter);
}

void AccountFeature::addServiceCommands(CommandInterpreter& interpreter)
{
    interpreter.add(
        {u"account listen"_s, u"[<port>]"_s,
         u"Starts the account service on this machine's loopback interface and prints its "
         u"address,\n"
         "{\"event\":\"account-listening\",\"url\":...}, which a program takes as Server/url.\n"
         "Without a port: the port used before, or a free one."_s,
         [this](CommandArguments& arguments) {
             const int port = arguments.atEnd() ? 0 : arguments.integer(u"the port"_s, 1, 65535);
             return simpleAction([this, port] { return listen(quint16(port)); });
         }});
    interpreter.add(u"account close"_s,
                    u"Refuses new connections and drops the existing ones. Accounts stay."_s,
                    [this] { m_service.close(); });
}

void AccountFeature::addAccountCommands(CommandInterpreter& interpreter)
{
    interpreter.add(
        {u"account add"_s, u"<email> <password> [<field>=<text> ...]"_s,
         u"Adds an account. Fields: firstName, lastName, company, title, picture (a file). Put\n"
         "texts with blanks in double quotes."_s,
         [this](CommandArguments& arguments) {
             Account account;
             account.email = unquoted(arguments.word(u"the email"_s));
             account.password = unquoted(arguments.word(u"the password"_s));
             QString pictureFile;
             takeFields(arguments, account, pictureFile);
             return simpleAction(
                 [this, account, pictureFile] { return addAccount(account, pictureFile); });
         }});
    interpreter.add({u"account expire"_s, u"<email>"_s,
                     u"Ends the sessions of an account: its tokens are no longer valid."_s,
                     [this](CommandArguments& arguments) {
                         const QString email = unquoted(arguments.word(u"the email"_s));
                         return simpleAction([this, email] { return expireSessions(email); });
                     }});
    interpreter.add(u"account show"_s,
                    u"Prints all accounts, including registered ones, without passwords."_s,
                    [this] { showAccounts(); });
}

void AccountFeature::addFaultCommands(CommandInterpreter& interpreter)
{
    interpreter.add(
        {u"account fault"_s, u"<endpoint>|all <kind>"_s,
         u"Makes the service misbehave from the next request on, until none. Endpoints:\n"_s +
             endpointNames().join(u", "_s) + u".\nKinds: "_s + wordList(commandFaults()) + u'.',
         [this](CommandArguments& arguments) {
             const int endpoint = arguments.choice(endpointNames() + QStringList{u"all"_s});
             const auto kind = AccountFault::Kind(arguments.choice(commandFaults()));
             return simpleAction([this, endpoint, kind] {
                 if (endpoint == endpointNames().size())
                     m_service.setFault(kind);
                 else
                     m_service.setFault(Endpoint(endpoint), kind);
             });
         }});
    interpreter.add(
        {u"account reply"_s, u"<endpoint> <body>"_s,
         u"Answers every request of the endpoint with this body, until \"account fault\"."_s,
         [this](CommandArguments& arguments) {
             const auto endpoint = Endpoint(arguments.choice(endpointNames()));
             const QByteArray body = arguments.rest(u"the body"_s).toUtf8();
             return simpleAction(
                 [this, endpoint, body] { m_service.setCannedReply(endpoint, body); });
         }});
}

void AccountFeature::addExpectations(CommandInterpreter& interpreter)
{
    interpreter.add(
        {u"expect-request"_s, u"<endpoint> [<condition> ...] [within <seconds>]"_s,
         u"Waits for a request as \"expect\" does for a message. The conditions are on\n"
         "the event's fields: email, firstName, lastName, company, title, pictureSize,\n"
         "hasToken."_s,
         [this](CommandArguments& arguments) {
             const int endpoint = arguments.choice(endpointNames());
             const auto pattern = MessagePattern::parseConditions(endpoint, arguments);
             return m_requests.expect(pattern, arguments);
         }});
}

QJsonObject AccountFeature::status() const
{
    if (m_service.port() == 0)
        return {};
    QJsonObject faults;
    for (int i = 0; i < endpointNames().size(); ++i) {
        const auto kind = m_service.fault(Endpoint(i));
        if (kind != AccountFault::Kind::None)
            faults.insert(endpointNames().at(i), faultNames().at(int(kind)));
    }
    return {{u"url"_s, m_service.baseUrl()}, {u"faults"_s, faults}};
}

QString AccountFeature::listen(quint16 port)
{
    if (m_service.port() != 0)
        return u"the account service listens already, on %1"_s.arg(m_service.baseUrl());
    if (!m_service.listen(port == 0 ? m_lastPort : port))
        return u"the account service cannot have that port"_s;
    m_lastPort = m_service.port();
    m_log.write(u"account-listening"_s, {{u"url"_s, m_service.baseUrl()}});
    return {};
}

QString AccountFeature::addAccount(Account account, const QString& pictureFile)
{
    if (m_service.store().accountByEmail(account.email))
        return u"there is an account of %1 already"_s.arg(account.email);
    if (!pictureFile.isEmpty()) {
        QFile file(pictureFile);
        if (!file.open(QIODevice::ReadOnly))
            return u"cannot read the picture \"%1\": %2"_s.arg(pictureFile, file.errorString());
        account.picture = QString::fromLatin1(file.readAll().toBase64());
    }
    const QString email = account.email;
    const QString userId = m_service.store().addAccount(std::move(account));
    m_log.write(u"account-added"_s, {{u"email"_s, email}, {u"userId"_s, userId}});
    return {};
}

QString AccountFeature::expireSessions(const QString& email)
{
    const Account* const account = m_service.store().accountByEmail(email);
    if (!account)
        return u"there is no account of %1"_s.arg(email);
    m_service.store().revokeTokens(account->userId);
    return {};
}

void AccountFeature::showAccounts()
{
    QJsonArray accounts;
    for (const Account& account : m_service.store().accounts())
        accounts.append(shown(account));
    m_log.write(u"accounts"_s, {{u"accounts"_s, accounts}});
}

void AccountFeature::noteRequest(const AccountRequest& request)
{
    const auto endpoint = AccountRoutes::endpointOf(request);
    const QJsonObject fields = shown(request);
    QJsonObject event = fields;
    event.insert(u"method"_s, QString::fromUtf8(request.method));
    event.insert(u"path"_s, QString::fromUtf8(request.path()));
    if (endpoint) {
        event.insert(u"endpoint"_s, endpointNames().at(int(*endpoint)));
        event.insert(u"fault"_s, faultNames().at(int(m_service.fault(*endpoint))));
        m_requests.note(static_cast<int>(*endpoint), fields);
    }
    m_log.write(u"account-request"_s, event);
    emit changed();
}
