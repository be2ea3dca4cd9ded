-- What the database says about itself, and what it keeps for its users.

-- One row. A program that finds another version than its own can say so before it reads on.
CREATE TABLE SCHEMA_INFO (
    version         INTEGER NOT NULL,
    made_with       VARCHAR(40)         -- program that made the tables, or converted them last
);

INSERT INTO SCHEMA_INFO (version) VALUES (2);

-- Settings of a user: short keys, values written as text.
CREATE TABLE PREF_USER (
    user_id         INTEGER,            -- USERDEF.user_id
    pref_key        VARCHAR(10),
    pref_value      VARCHAR(300),
    PRIMARY KEY (user_id, pref_key)
);

-- The people who analyse samples. Their abbreviation is what analyses and labels show.
CREATE TABLE USERDEF (
    user_id         INTEGER PRIMARY KEY,
    abr             VARCHAR(5)
);
