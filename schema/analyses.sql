-- Analyses of samples: who looked at them in which discipline, and what was found.

-- One analyst working on one well in one discipline. analy_no tells the runs of an analyst apart.
-- Stored by its key, since half a million occurrences look their analysis up here.
CREATE TABLE ANALY_HDR (
    well_id         INTEGER,            -- WELL_IDENT.well_id
    analy_id        INTEGER,
    disc_id         VARCHAR(1),         -- DISCS.disc_id
    analyst         INTEGER,            -- USERDEF.user_id
    analy_no        INTEGER,            -- 1 for the first run
    red             SMALLINT,           -- display colour, 0 to 255
    green           SMALLINT,
    blue            SMALLINT,
    abnsch_id       INTEGER,            -- ABNSCHME.scheme_id
    PRIMARY KEY (well_id, analy_id)
) WITHOUT ROWID;

CREATE INDEX ANALY_HDR_BY_ANALYST ON ANALY_HDR (analyst);

-- What one analysis recorded about one sample. analy_id names the analysis; disc_id and analyst
-- name it in words and are kept in step with it below.
CREATE TABLE SMPDTL (
    well_id         INTEGER,            -- WELL_IDENT.well_id
    samp_id         INTEGER,            -- SAMPLES.samp_id
    analy_id        INTEGER,            -- ANALY_HDR.analy_id
    disc_id         VARCHAR(1),         -- ANALY_HDR.disc_id
    analyst         VARCHAR(7),         -- analyst key, see ANALYSIS_KEYS
    picker          VARCHAR(5),         -- who picked the fossils
    source          VARCHAR(5),         -- who supplied the material
    barren          VARCHAR(1),         -- Y or N
    modified        DATE,
    modifier        VARCHAR(5),         -- USERDEF.abr
    weight          DOUBLE,             -- split weight, 0 for not split
    coarse          DOUBLE,             -- split factors of the three size fractions
    medium          DOUBLE,
    fine            DOUBLE,
    notes           VARCHAR(240),
    proximal        INTEGER,
    distal          INTEGER,
    PRIMARY KEY (samp_id, analy_id)
);

CREATE INDEX SMPDTL_BY_ANALYSIS ON SMPDTL (well_id, analy_id);
CREATE INDEX SMPDTL_BY_KEY ON SMPDTL (samp_id, disc_id, analyst);

-- One taxon found in one sample by one analysis. The same taxon may stand there several times, in
-- place and reworked or certain and questionable, so there is no key.
CREATE TABLE TAXONOCC (
    well_id         INTEGER,            -- WELL_IDENT.well_id
    samp_id         INTEGER,            -- SAMPLES.samp_id
    spec_id         INTEGER,            -- SPECIES.spec_id
    analy_id        INTEGER,            -- ANALY_HDR.analy_id
    disc_id         VARCHAR(1),         -- ANALY_HDR.disc_id, kept in step with analy_id below
    status          VARCHAR(1),         -- R reworked, I in place
    ident_type      VARCHAR(1),         -- a question mark for questionable, P for positive
    abund           VARCHAR(2),         -- abundance code of the scheme of the analysis
    caved           VARCHAR(1),         -- C caved
    marker          VARCHAR(1),         -- Y marker
    medium          INTEGER,            -- counts of the three size fractions
    coarse          INTEGER,
    fine            INTEGER,
    spec_type_id    INTEGER,
    preserv         VARCHAR(255),       -- preservation
    colour          VARCHAR(255),
    comments        VARCHAR(2000)
);

-- In the order in which a well is loaded, so that the rows stream without a sort.
CREATE INDEX TAXONOCC_BY_SAMPLE ON TAXONOCC (well_id, samp_id, spec_id);
-- Answers which taxa a discipline has in a well without touching the table.
CREATE INDEX TAXONOCC_BY_DISCIPLINE ON TAXONOCC (well_id, disc_id, spec_id);

-- Remarks on a sample, per interpretation, discipline and analyst.
CREATE TABLE BCMMNTS (
    usamp_id        INTEGER,            -- SAMPLES.samp_id
    interp_id       INTEGER,            -- interpretation, 0 or NULL for none
    disc_id         VARCHAR(1),         -- DISCS.disc_id
    analyst         VARCHAR(7),         -- analyst key, see ANALYSIS_KEYS
    comments        VARCHAR(2000)
);

CREATE INDEX BCMMNTS_BY_SAMPLE ON BCMMNTS (usamp_id, disc_id, analyst);

-- Each analysis in words: its discipline, and its analyst key, which is the abbreviation of the
-- user, followed by a slash and the number of the run from the second run on. The one place that
-- builds the key.
CREATE VIEW ANALYSIS_KEYS AS
SELECT h.well_id, h.analy_id, h.disc_id,
    CASE WHEN h.analy_no > 1 AND u.abr IS NOT NULL
        THEN printf('%s/%d', u.abr, h.analy_no) ELSE u.abr END AS analyst
FROM ANALY_HDR h LEFT JOIN USERDEF u ON u.user_id = h.analyst;

-- SMPDTL: an analy_id that is written decides over the words.
CREATE TRIGGER SMPDTL_ID_INSERTED AFTER INSERT ON SMPDTL
WHEN new.analy_id IS NOT NULL
BEGIN
    UPDATE SMPDTL SET disc_id = k.disc_id, analyst = coalesce(k.analyst, SMPDTL.analyst)
    FROM ANALYSIS_KEYS k
    WHERE SMPDTL.rowid = new.rowid AND k.well_id = new.well_id AND k.analy_id = new.analy_id
        AND (k.disc_id, coalesce(k.analyst, SMPDTL.analyst))
            IS NOT (SMPDTL.disc_id, SMPDTL.analyst);
END;

CREATE TRIGGER SMPDTL_ID_UPDATED AFTER UPDATE OF well_id, analy_id ON SMPDTL
WHEN new.analy_id IS NOT NULL AND (new.well_id, new.analy_id) IS NOT (old.well_id, old.analy_id)
BEGIN
    UPDATE SMPDTL SET disc_id = k.disc_id, analyst = coalesce(k.analyst, SMPDTL.analyst)
    FROM ANALYSIS_KEYS k
    WHERE SMPDTL.rowid = new.rowid AND k.well_id = new.well_id AND k.analy_id = new.analy_id
        AND (k.disc_id, coalesce(k.analyst, SMPDTL.analyst))
            IS NOT (SMPDTL.disc_id, SMPDTL.analyst);
END;

-- SMPDTL: words alone find their analysis; when no analysis has them, there is no analy_id.
CREATE TRIGGER SMPDTL_KEY_INSERTED AFTER INSERT ON SMPDTL
WHEN new.analy_id IS NULL AND new.analyst IS NOT NULL
BEGIN
    UPDATE SMPDTL SET analy_id = (
        SELECT min(k.analy_id) FROM ANALYSIS_KEYS k
        WHERE k.well_id = new.well_id AND k.disc_id = new.disc_id AND k.analyst = new.analyst)
    WHERE rowid = new.rowid;
END;

-- The words may have been changed because the analysis itself was: then they agree already.
CREATE TRIGGER SMPDTL_KEY_UPDATED AFTER UPDATE OF disc_id, analyst ON SMPDTL
WHEN new.analy_id IS old.analy_id
    AND (new.disc_id, new.analyst) IS NOT (old.disc_id, old.analyst)
    AND NOT EXISTS (
        SELECT 1 FROM ANALYSIS_KEYS k
        WHERE k.well_id = new.well_id AND k.analy_id = new.analy_id
            AND (k.disc_id, coalesce(k.analyst, new.analyst)) IS (new.disc_id, new.analyst))
BEGIN
    UPDATE SMPDTL SET analy_id = (
        SELECT min(k.analy_id) FROM ANALYSIS_KEYS k
        WHERE k.well_id = new.well_id AND k.disc_id = new.disc_id AND k.analyst = new.analyst)
    WHERE rowid = new.rowid;
END;

-- SMPDTL: when analy_id is emptied, words that still say the former analysis go with it, and other
-- words, written together with the NULL, find theirs.
CREATE TRIGGER SMPDTL_ID_EMPTIED AFTER UPDATE OF analy_id ON SMPDTL
WHEN new.analy_id IS NULL AND old.analy_id IS NOT NULL
BEGIN
    UPDATE SMPDTL SET analy_id = (
        SELECT min(k.analy_id) FROM ANALYSIS_KEYS k
        WHERE k.well_id = new.well_id AND k.disc_id = new.disc_id AND k.analyst = new.analyst)
    WHERE rowid = new.rowid AND (new.disc_id, new.analyst) IS NOT (old.disc_id, old.analyst);
    UPDATE SMPDTL SET disc_id = NULL, analyst = NULL
    WHERE rowid = new.rowid AND EXISTS (
        SELECT 1 FROM ANALYSIS_KEYS k
        WHERE k.well_id = old.well_id AND k.analy_id = old.analy_id
            AND (k.disc_id, coalesce(k.analyst, new.analyst)) IS (new.disc_id, new.analyst));
END;

-- TAXONOCC: the discipline is that of the analysis. The condition is one look-up by key and false
-- for an import that brings the right letter along.
CREATE TRIGGER TAXONOCC_INSERTED AFTER INSERT ON TAXONOCC
WHEN (SELECT h.disc_id IS NOT new.disc_id FROM ANALY_HDR h
    WHERE h.well_id = new.well_id AND h.analy_id = new.analy_id)
BEGIN
    UPDATE TAXONOCC SET disc_id = (
        SELECT h.disc_id FROM ANALY_HDR h
        WHERE h.well_id = new.well_id AND h.analy_id = new.analy_id)
    WHERE rowid = new.rowid;
END;

CREATE TRIGGER TAXONOCC_UPDATED AFTER UPDATE OF well_id, analy_id, disc_id ON TAXONOCC
WHEN (SELECT h.disc_id IS NOT new.disc_id FROM ANALY_HDR h
    WHERE h.well_id = new.well_id AND h.analy_id = new.analy_id)
BEGIN
    UPDATE TAXONOCC SET disc_id = (
        SELECT h.disc_id FROM ANALY_HDR h
        WHERE h.well_id = new.well_id AND h.analy_id = new.analy_id)
    WHERE rowid = new.rowid;
END;

CREATE TRIGGER TAXONOCC_ID_EMPTIED AFTER UPDATE OF analy_id ON TAXONOCC
WHEN new.analy_id IS NULL AND old.analy_id IS NOT NULL AND new.disc_id IS old.disc_id
BEGIN
    UPDATE TAXONOCC SET disc_id = NULL WHERE rowid = new.rowid;
END;

-- A changed analysis carries its rows with it, and a new one claims the details that waited for it.
CREATE TRIGGER ANALY_HDR_INSERTED AFTER INSERT ON ANALY_HDR
BEGIN
    UPDATE SMPDTL SET disc_id = k.disc_id, analyst = coalesce(k.analyst, SMPDTL.analyst)
    FROM ANALYSIS_KEYS k
    WHERE k.well_id = new.well_id AND k.analy_id = new.analy_id
        AND SMPDTL.well_id = new.well_id AND SMPDTL.analy_id = new.analy_id
        AND (k.disc_id, coalesce(k.analyst, SMPDTL.analyst))
            IS NOT (SMPDTL.disc_id, SMPDTL.analyst);
    UPDATE SMPDTL SET analy_id = new.analy_id
    WHERE well_id = new.well_id AND analy_id IS NULL
        AND (disc_id, analyst) = (
            SELECT k.disc_id, k.analyst FROM ANALYSIS_KEYS k
            WHERE k.well_id = new.well_id AND k.analy_id = new.analy_id);
    UPDATE TAXONOCC SET disc_id = new.disc_id
    WHERE well_id = new.well_id AND analy_id = new.analy_id AND disc_id IS NOT new.disc_id;
END;

CREATE TRIGGER ANALY_HDR_UPDATED
AFTER UPDATE OF well_id, analy_id, disc_id, analyst, analy_no ON ANALY_HDR
BEGIN
    UPDATE SMPDTL SET disc_id = k.disc_id, analyst = coalesce(k.analyst, SMPDTL.analyst)
    FROM ANALYSIS_KEYS k
    WHERE k.well_id = new.well_id AND k.analy_id = new.analy_id
        AND SMPDTL.well_id = new.well_id AND SMPDTL.analy_id = new.analy_id
        AND (k.disc_id, coalesce(k.analyst, SMPDTL.analyst))
            IS NOT (SMPDTL.disc_id, SMPDTL.analyst);
    UPDATE SMPDTL SET analy_id = new.analy_id
    WHERE well_id = new.well_id AND analy_id IS NULL
        AND (disc_id, analyst) = (
            SELECT k.disc_id, k.analyst FROM ANALYSIS_KEYS k
            WHERE k.well_id = new.well_id AND k.analy_id = new.analy_id);
    UPDATE TAXONOCC SET disc_id = new.disc_id
    WHERE well_id = new.well_id AND analy_id = new.analy_id AND disc_id IS NOT new.disc_id;
END;

-- A user with another abbreviation has other analyst keys: touching the analyses derives them anew.
CREATE TRIGGER USERDEF_INSERTED AFTER INSERT ON USERDEF
BEGIN
    UPDATE ANALY_HDR SET analyst = new.user_id WHERE analyst = new.user_id;
END;

CREATE TRIGGER USERDEF_UPDATED AFTER UPDATE OF user_id, abr ON USERDEF
BEGIN
    UPDATE ANALY_HDR SET analyst = new.user_id WHERE analyst = new.user_id;
END;
