#include "device/UserProfile.h"

#include "account/AccountText.h"
#include "account/ImageFile.h"
#include "persistence/Keys.h"
#include "persistence/UserSettings.h"

#include <QThread>

using namespace Qt::StringLiterals;

UserProfile::UserProfile()
    : m_login({"DeviceControl::setLogin", "m_login:", ", newLogin:"})
    , m_firstName({"DeviceControl::setFirstName", "m_firstName:", ", newFirstName:"})
    , m_lastName({"DeviceControl::setLastName", "m_lastName:", ", newLastName:"})
    , m_email({"DeviceControl::setEmail", "m_email:", ", newEmail:"})
    , m_company({"DeviceControl::setCompany", "m_company:", ", newCompany:"})
    , m_title({"DeviceControl::setTitle", "m_title:", ", newTitle:"})
    , m_token({"DeviceControl::setToken", "m_token:", ", newToken:"})
    , m_userId({"DeviceControl::setUserId", "m_userId:", ", newUserId:"})
    , m_userImage(keys::DefaultUserImage)
{
}

void UserProfile::restore(UserSettings& store)
{
    m_store = &store;
    const auto read = [&store](QLatin1StringView key) {
        // A version that did not limit the texts of the service may have stored them.
        return AccountText::value(key.toString(), store.getUserData(key, QString()).toString());
    };
    setEmail(read(keys::user::Email));
    setFirstName(read(keys::user::FirstName));
    setLastName(read(keys::user::LastName));
    setCompany(read(keys::user::Company));
    setTitle(read(keys::user::Title));
    setToken(read(keys::user::Token));
    setUserId(read(keys::user::UserId));
    adoptPicture(read(keys::user::Picture));
    if (!email().isEmpty()) {
        setLogin(true);
    } else if (!(token() + userId() + rawPicture() + firstName() + lastName() + company() + title())
                    .isEmpty()) {
        // A version that wrote value by value could be killed within a sign-in.
        clear();
        setUserId({});
    }
}

void UserProfile::setLogin(bool newLogin)
{
    Q_ASSERT(QThread::currentThread() == thread());
    if (!m_login.set(newLogin))
        return;
    emit loginChanged();
    if (!newLogin)
        clear();
}

/// The user id stays: without a token no request is sent, and the next sign-in replaces the id.
void UserProfile::clear()
{
    setEmail({});
    setFirstName({});
    setLastName({});
    setCompany({});
    setTitle({});
    setToken({});
    setUserImage(keys::DefaultUserImage);
    m_rawPicture.clear();
    if (m_store)
        m_store->clearUserData();
}

void UserProfile::set(LoggedValue<QString>& value, const QString& newValue,
                      void (UserProfile::*changed)())
{
    Q_ASSERT(QThread::currentThread() == thread());
    if (value.set(newValue))
        emit(this->*changed)();
}

void UserProfile::setUserImage(const QString& newUserImage)
{
    if (m_userImage == newUserImage)
        return;
    m_userImage = newUserImage;
    emit userImageChanged();
}

void UserProfile::loginSuccess(const QJsonObject& root)
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
    adoptAndSavePicture(user);
    setUserId(user[keys::user::UserId].toString());
    setToken(data[keys::user::Token].toString());
    setEmail(user[keys::user::Email].toString());
    adoptNames(user);

    emit addTask(keys::task::SaveRegistry,
                 {keys::registry::Path, keys::registry::UserName, email()});
    save(keys::user::Token, token());
    save(keys::user::UserId, userId());
    save(keys::user::Email, email());
    saveNames();
}

void UserProfile::updateSuccess(const QJsonObject& root)
{
    if (root["data"_L1].isObject())
        requestSuccess(root["data"_L1].toObject());
    else
        Log::error("DeviceControl::profileUpdateSuccess") << "not contains data";
}

void UserProfile::requestSuccess(const QJsonObject& root)
{
    adoptAndSavePicture(root);
    adoptNames(root);
    saveNames();
}

void UserProfile::adoptPicture(const QString& picture)
{
    if (picture.isEmpty())
        return;
    m_rawPicture = picture;
    if (ImageFile::isAffordable(QByteArray::fromBase64(picture.toLatin1()))) {
        setUserImage("data:image/png;base64,"_L1 + picture);
        return;
    }
    Log::error("DeviceControl::setUserImage") << "the picture is too large to be shown";
    setUserImage(keys::DefaultUserImage);
}

void UserProfile::adoptAndSavePicture(const QJsonObject& user)
{
    const QString picture = user[keys::user::Picture].toString();
    adoptPicture(picture);
    if (!picture.isEmpty())
        save(keys::user::Picture, picture);
}

void UserProfile::adoptNames(const QJsonObject& user)
{
    setFirstName(user[keys::user::FirstName].toString());
    setLastName(user[keys::user::LastName].toString());
    setCompany(user[keys::user::Company].toString());
    setTitle(user[keys::user::Title].toString());
}

void UserProfile::saveNames()
{
    save(keys::user::FirstName, firstName());
    save(keys::user::LastName, lastName());
    save(keys::user::Company, company());
    save(keys::user::Title, title(), true);
}

/// The tasks of one change are committed together, with the last one. They carry the number of the
/// sign-in, so that they are dropped after a sign-out.
void UserProfile::save(QLatin1StringView key, const QString& value, bool isLast)
{
    if (m_store)
        emit addTask(keys::task::SaveUserData, {key, value, m_store->currentSignIn(), !isLast});
}
