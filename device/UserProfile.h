#pragma once

#include "account/AccountIdentity.h"
#include "device/LoggedValue.h"

#include <QJsonObject>
#include <QObject>
#include <QVariantList>

class UserSettings;

/// The signed-in user: adopts the replies of the account service, saves them, and restores them at
/// the next start. Main thread.
class UserProfile : public QObject, public AccountIdentity
{
    Q_OBJECT

public:
    UserProfile();

    /// Reads the stored profile. A stored e-mail address counts as signed in; without one, other
    /// values belong to nobody and are cleared. The store, which has to outlive this object, is
    /// kept for later changes. Once.
    void restore(UserSettings& store);

    bool login() const { return m_login.get(); }
    QString firstName() const { return m_firstName.get(); }
    QString lastName() const { return m_lastName.get(); }
    QString email() const { return m_email.get(); }
    QString company() const { return m_company.get(); }
    QString title() const { return m_title.get(); }
    QString token() const override { return m_token.get(); }
    QString userId() const override { return m_userId.get(); }
    /// The avatar as an image source.
    QString userImage() const { return m_userImage; }
    QString rawPicture() const override { return m_rawPicture; }

    /// A sign-out clears everything but the user id, here and in the store.
    void setLogin(bool newLogin);
    void setFirstName(const QString& name)
    {
        set(m_firstName, name, &UserProfile::firstNameChanged);
    }
    void setLastName(const QString& name) { set(m_lastName, name, &UserProfile::lastNameChanged); }
    void setEmail(const QString& email) { set(m_email, email, &UserProfile::emailChanged); }
    void setCompany(const QString& company)
    {
        set(m_company, company, &UserProfile::companyChanged);
    }
    void setTitle(const QString& title) { set(m_title, title, &UserProfile::titleChanged); }
    void setToken(const QString& token) { set(m_token, token, &UserProfile::tokenChanged); }
    void setUserId(const QString& userId) { set(m_userId, userId, &UserProfile::userIdChanged); }

    // Each takes a whole reply of the service. Their shapes differ: a sign-in holds the user within
    // "data", a profile edit holds the fields in "data", a profile read at its top level.
    void loginSuccess(const QJsonObject& root);
    void updateSuccess(const QJsonObject& root);
    void requestSuccess(const QJsonObject& root);

signals:
    void loginChanged();
    void firstNameChanged();
    void lastNameChanged();
    void emailChanged();
    void companyChanged();
    void titleChanged();
    void tokenChanged();
    void userImageChanged();
    void userIdChanged();
    void addTask(QString task, QVariantList args);

private:
    void set(LoggedValue<QString>& value, const QString& newValue, void (UserProfile::*changed)());
    void setUserImage(const QString& newUserImage);
    void clear();
    void adoptPicture(const QString& picture);
    void adoptAndSavePicture(const QJsonObject& user);
    void adoptNames(const QJsonObject& user);
    void save(QLatin1StringView key, const QString& value, bool isLast = false);
    void saveNames();

    // Main thread only.
    LoggedValue<bool> m_login;
    LoggedValue<QString> m_firstName;
    LoggedValue<QString> m_lastName;
    LoggedValue<QString> m_email;
    LoggedValue<QString> m_company;
    LoggedValue<QString> m_title;
    LoggedValue<QString> m_token;
    LoggedValue<QString> m_userId;
    QString m_userImage;
    QString m_rawPicture;
    UserSettings* m_store = nullptr; // none until restore()
};
