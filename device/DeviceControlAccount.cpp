#include "device/DeviceControlChange.h"

#include "persistence/UserSettings.h"

using namespace Qt::StringLiterals;

namespace
{

const QString& defaultUserImage()
{
    static const QString s_image = u"qrc:/images/user_84x84.png"_s;
    return s_image;
}

} // namespace

bool DeviceControl::login() const
{
    return stored(m_login);
}

void DeviceControl::setLogin(bool newLogin)
{
    if (!change(m_login, newLogin, {"DeviceControl::setLogin", "m_login:", ", newLogin:"}))
        return;
    emit loginChanged();
    if (!newLogin)
        clearAccount();
}

/// The user id stays: nothing is asked of the service without a token, and a sign-in replaces it.
void DeviceControl::clearAccount()
{
    setEmail({});
    setFirstName({});
    setLastName({});
    setCompany({});
    setTitle({});
    setToken({});
    setUserImage(defaultUserImage());
    {
        const std::scoped_lock lock(m_stateMutex);
        m_rawPicture.clear();
    }
    m_services.userSettings().clearUserData();
}

QString DeviceControl::firstName() const
{
    return stored(m_firstName);
}

void DeviceControl::setFirstName(const QString& newFirstName)
{
    if (!change(m_firstName, newFirstName,
                {"DeviceControl::setFirstName", "m_firstName:", ", newFirstName:"}))
        return;
    emit firstNameChanged();
}

QString DeviceControl::lastName() const
{
    return stored(m_lastName);
}

void DeviceControl::setLastName(const QString& newLastName)
{
    if (!change(m_lastName, newLastName,
                {"DeviceControl::setLastName", "m_lastName:", ", newLastName:"}))
        return;
    emit lastNameChanged();
}

QString DeviceControl::email() const
{
    return stored(m_email);
}

void DeviceControl::setEmail(const QString& newEmail)
{
    if (!change(m_email, newEmail, {"DeviceControl::setEmail", "m_email:", ", newEmail:"}))
        return;
    emit emailChanged();
}

QString DeviceControl::company() const
{
    return stored(m_company);
}

void DeviceControl::setCompany(const QString& newCompany)
{
    if (!change(m_company, newCompany,
                {"DeviceControl::setCompany", "m_company:", ", newCompany:"}))
        return;
    emit companyChanged();
}

QString DeviceControl::title() const
{
    return stored(m_title);
}

void DeviceControl::setTitle(const QString& newTitle)
{
    if (!change(m_title, newTitle, {"DeviceControl::setTitle", "m_title:", ", newTitle:"}))
        return;
    emit titleChanged();
}

QString DeviceControl::token() const
{
    return stored(m_token);
}

void DeviceControl::setToken(const QString& newToken)
{
    if (!change(m_token, newToken, {"DeviceControl::setToken", "m_token:", ", newToken:"}))
        return;
    emit tokenChanged();
}

QString DeviceControl::userId() const
{
    return stored(m_userId);
}

void DeviceControl::setUserId(const QString& newUserId)
{
    if (!change(m_userId, newUserId, {"DeviceControl::setUserId", "m_userId:", ", newUserId:"}))
        return;
    emit userIdChanged();
}

QString DeviceControl::userImage() const
{
    return stored(m_userImage);
}

QString DeviceControl::rawPicture() const
{
    return stored(m_rawPicture);
}

void DeviceControl::setUserImage(const QString& newUserImage)
{
    {
        const std::scoped_lock lock(m_stateMutex);
        if (m_userImage == newUserImage)
            return;
        m_userImage = newUserImage;
    }
    emit userImageChanged();
}

void DeviceControl::adoptPicture(const QString& picture)
{
    if (picture.isEmpty())
        return;
    {
        const std::scoped_lock lock(m_stateMutex);
        m_rawPicture = picture;
    }
    setUserImage("data:image/png;base64,"_L1 + picture);
}

void DeviceControl::restoreAccount()
{
    UserSettings& settings = m_services.userSettings();
    const auto read = [&settings](const QString& key) {
        return settings.getUserData(key, QString()).toString();
    };
    setEmail(read(u"email"_s));
    setFirstName(read(u"firstName"_s));
    setLastName(read(u"lastName"_s));
    setCompany(read(u"company"_s));
    setTitle(read(u"title"_s));
    setToken(read(u"token"_s));
    setUserId(read(u"userId"_s));
    adoptPicture(read(u"picture"_s));
    if (!email().isEmpty())
        setLogin(true);
}

void DeviceControl::saveUserValue(const QString& key, const QString& value)
{
    const quint64 signIn = m_services.userSettings().currentSignIn();
    emit addTask(u"saveDB"_s, {key, value, signIn});
}

void DeviceControl::loginSuccess(const QJsonObject& root)
{
    constexpr auto Function = "DeviceControl::loginSuccess";
    setLogin(true);
    if (!root["data"_L1].isObject()) {
        Log::error(Function) << "not contains data";
        return;
    }
    const QJsonObject data = root["data"_L1].toObject();
    if (!data["user"_L1].isObject()) {
        Log::error(Function) << "not contains user";
        return;
    }
    const QJsonObject user = data["user"_L1].toObject();

    const QString picture = user["picture"_L1].toString();
    adoptPicture(picture);
    if (!picture.isEmpty())
        saveUserValue(u"picture"_s, picture);

    setUserId(user["userId"_L1].toString());
    setToken(data["token"_L1].toString());
    setEmail(user["email"_L1].toString());
    setFirstName(user["firstName"_L1].toString());
    setLastName(user["lastName"_L1].toString());
    setCompany(user["company"_L1].toString());
    setTitle(user["title"_L1].toString());

    emit addTask(u"saveRegistry"_s, {registryPath(), u"username"_s, email()});
    saveUserValue(u"token"_s, token());
    saveUserValue(u"userId"_s, userId());
    saveUserValue(u"email"_s, email());
    saveUserValue(u"firstName"_s, firstName());
    saveUserValue(u"lastName"_s, lastName());
    saveUserValue(u"company"_s, company());
    saveUserValue(u"title"_s, title());
}

void DeviceControl::profileUpdateSuccess(const QJsonObject& root)
{
    if (!root["data"_L1].isObject()) {
        Log::error("DeviceControl::profileUpdateSuccess") << "not contains data";
        return;
    }
    adoptProfile(root["data"_L1].toObject());
}

/// The service answers a read with the user object itself, without the level that an edit has.
void DeviceControl::profileRequestSuccess(const QJsonObject& root)
{
    adoptProfile(root);
}

void DeviceControl::adoptProfile(const QJsonObject& profile)
{
    const QString picture = profile["picture"_L1].toString();
    adoptPicture(picture);
    if (!picture.isEmpty())
        saveUserValue(u"picture"_s, picture);
    setFirstName(profile["firstName"_L1].toString());
    setLastName(profile["lastName"_L1].toString());
    setCompany(profile["company"_L1].toString());
    setTitle(profile["title"_L1].toString());
    saveUserValue(u"firstName"_s, firstName());
    saveUserValue(u"lastName"_s, lastName());
    saveUserValue(u"company"_s, company());
    saveUserValue(u"title"_s, title());
}
