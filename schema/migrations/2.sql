-- Which program made a file is the first question when something in it looks odd.
ALTER TABLE SCHEMA_INFO ADD COLUMN made_with VARCHAR(40);
